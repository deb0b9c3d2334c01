-- The process may even end while a result of the host is on its way to the script.
local many, echo = {}, cases.echo
for i = 1, 1000 do many[i] = {cases.Probe(), "text"} end
collectgarbage("stop")
setmetatable({}, {__gc = function() print("ends") os.exit(6) end})
collectgarbage("incremental", 1, 1000)
collectgarbage("restart")
for _ = 1, 100 do echo(many) end
print("never")
