-- A script that ends the process gives everything back, wherever it stands.
local a <close> = orbis_factory.Adder()
local last <close> = setmetatable({}, {__close = function() print("closes", orbis_factory.Adder(1).total) end})
setmetatable({}, {__gc = function() print("finalizer", pcall(function() return a.total end)) end})
withvm(function()
  local b = orbis_factory.Adder(1)
  coroutine.wrap(function()
    local c <close> = cases.Probe()
    c.value = {b, b}
    print("before")
    pcall(os.exit, 5)
    print("never")
  end)()
end)
