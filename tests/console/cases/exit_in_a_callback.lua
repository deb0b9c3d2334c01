-- A script that ends the process inside of native code, which is never returned to.
local a <close> = setmetatable({}, {__close = function() print("closes") end})
coroutine.wrap(function() callbacks.keep(function() os.exit(5) end) end)()
