-- Objects that are deleted, closed, of an unloaded module, or of another virtual machine.
local refused, eachRefused = loadfile("../refused.lua")(function(err) return err.identifier end)
local function value(object) return object.value end

local p = cases.Probe()
p.value = 1
local twin = p:twin()
delete(p)
print(p, isvalid(p), isvalid(twin), class(p), p == twin)
eachRefused {{value, p}, {p.twin, p}, {twin.twin, p}}
refused(function() p.value = 2 end)
refused(cases.echo, {p})
delete(p)
delete({cases.Probe(), cases.Probe()})
eachRefused {{delete, 5}, {delete, cases}, {delete, {1}}}

do
  local closed <close> = cases.Probe()
  p = closed
end
print(p, isvalid(p), class(p))
refused(value, p)

collectgarbage()
print(cases.alive())
for _ = 1, 100 do local given <close> = cases.Probe():twin() end
for _ = 1, 100 do cases.Probe().value = cases.echo({cases.Probe(), 1}) end
collectgarbage()
collectgarbage()
print(cases.alive())

local kept = cases.Probe()
local escaped, number = withvm(function(outer)
  refused(value, outer)
  refused(cases.echo, outer)
  local own = cases.Probe()
  own.value = 3
  refused(withvm, function() return own.value end)
  return own, own.value
end, kept)
print(escaped, isvalid(escaped), number, isvalid(kept), #kept.value)
refused(value, escaped)
print(pcall(withvm, function() error("leaves early", 0) end))
print(select("#", withvm(function() end)), pcall(withvm))
print(coroutine.resume(coroutine.create(function() withvm(coroutine.yield) end)))

local Probe, package, echo = cases.Probe, cases, cases.echo
local loaded = modules()
print(#loaded, loaded[1].name, loaded[#loaded].name)
unloadmodule("console_cases")
print(cases, kept, isvalid(kept), isvalid(Probe), Probe, package)
refused(Probe)
refused(function() return package.Probe end)
eachRefused {{echo, 1}, {value, kept}, {kept.twin, kept}, {unloadmodule, "console_cases"}, {loadmodule, "nowhere.so"},
  {loadmodule, (loaded[1].file:gsub("orbis_factory(%.[%w.]+)$", "velmara_host%1"))}}
print(loadmodule(loaded[#loaded].file), isvalid(Probe), isvalid(kept))
Probe().value = 1

-- where no stack is left, Lua frees without finalizing
local held
local function dropAtDepth(n)
  if n > 0 then return pcall(dropAtDepth, n - 1) end
  held = nil
  collectgarbage()
end
for depth = 150, 199 do
  held = {cases.Probe(), array("int8", {1})}
  dropAtDepth(depth)
end
