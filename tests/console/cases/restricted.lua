-- run: --restricted SCRIPT
-- What a stranger's script finds, and the ways out that it may try.
local function names(t)
  local found = {}
  for name in next, t do found[#found + 1] = name end
  table.sort(found)
  return table.concat(found, " ")
end
print(names(_G))
print(names(os), names(string))

-- everything that can be reached from here, through fields and metatables
local closed = {}
for name in ("io debug package require dofile loadfile loadlib searchers searchpath preload loaded cpath open popen " ..
             "lines stdout stderr execute getenv rename tmpname setlocale exit dump getregistry getupvalue sethook " ..
             "_LOADED _PRELOAD modules loadmodule unloadmodule withvm warn"):gmatch("%S+") do
  closed[name] = true
end
local seen = {[closed] = true}
local function walk(path, value)
  if value == nil or seen[value] then return end
  seen[value] = true
  local meta = getmetatable(value)
  if meta ~= nil then walk(path .. ".metatable", meta) end
  if type(value) ~= "table" then return end
  for key, field in next, value do
    if closed[key] then print("reached", path, key) end
    walk(path .. "." .. tostring(key), key)
    walk(path .. "." .. tostring(key), field)
  end
end
local probe = cases.Probe()
for name, value in next, {_G = _G, text = "", number = 1, flag = true, f = print, co = coroutine.running(), object = probe,
                          array = array("int8", {1}), cls = cases.Probe, refusal = select(2, pcall(cases.Probe, 1, 2)),
                          objects = objects(), missing = missing, null = null} do
  walk(name, value)
end
print(getmetatable(""), pcall(setmetatable, "", {}))
print(getmetatable(probe), getmetatable(cases), getmetatable(array("int8", {1})))

-- code that is loaded
print(load("return io, os.execute, require, package, debug")())
print(load("return _ENV == ...")(_G), load("return io", "x", "t", setmetatable({}, {__index = _G}))())
print(coroutine.wrap(function() return _G.io, _ENV.require, rawget(_G, "package") end)())
local bytecode = "\27Lua\x54\0\x19\x93\r\n\x1a\n"
for _, mode in ipairs({"b", "bt", "t"}) do print(load(bytecode, "x", mode)) end
local once = true
print(load(function() if once then once = false return bytecode end end, "x", "b", {}))
print(pcall(string.dump or function() error("gone", 0) end, print))

-- the collector's settings
for _, option in ipairs({"stop", "restart", "setpause", "setstepmul", "generational", "incremental"}) do
  print(option, (pcall(collectgarbage, option)))
end
print(collectgarbage(), type(collectgarbage("count")), collectgarbage("isrunning"), collectgarbage("step", 1e9))

-- functions of the console by their names, also from a finalizer
print(loadmodule, unloadmodule, modules, withvm)
print(pcall(load, "loadmodule('x.so')"), pcall(load("loadmodule('x.so')")))
setmetatable({}, {__gc = function() print("finalizer", io, require, package, debug, os.exit) end})

-- pictures: text, but no program and no file
for _, options in ipairs({{format = "svg"}, {file = "x.dot"}, {file = "x.svg", format = "dot"}}) do
  print(select(2, pcall(graph, probe, options)))
end

-- what stays
print(probe, #graph(probe) > 0, cases.echo(3), #array("double", {1, 2}), ("x"):rep(3), os.time() > 0, select("#", os.clock()))
