-- What a value says of itself in a line, and what `show` writes of it.
local gauge, other = callbacks.Gauge(), callbacks.Gauge()
print(gauge)
callbacks.keep(function(n)
  if n == 1 then print("  asked", gauge) show(gauge) end
  return n
end)
print(gauge)
show(gauge)
for _, what in ipairs {"delete", "release"} do
  local victim = callbacks.Gauge()
  callbacks.keep(function(n)
    if n == 1 and what == "delete" then delete(victim) end
    if n == 1 then local released <close> = victim end
    return n
  end)
  print(victim)
  if what == "delete" then show(victim) end
  print(victim, isvalid(victim))
end
callbacks.drop()
show({gauge, other})
local probe = cases.Probe()
cases.Probe.common = "of all"
probe.value = gauge
print(probe)
probe.value = probe
show(probe)
probe.value = {{probe, 1.5}, {"a long text that is cut somewhere", null}}
show(probe)
for depth = 1, 4 do
  local outer = cases.Probe()
  outer.value = probe
  probe = outer
end
show(probe)
delete(other)
show(other, {gauge, other}, cases.Probe, nil, 1 << 53, 0.5, "say \"\27[2J\"", print, array("int8", {{1, -20}, {3, 4}}))
probe.value = null

local cyclic = {1, "two", [10.5] = true, f = cases.echo, ["a b"] = {x = {y = {z = {}}}}}
cyclic.self, cyclic.inner = cyclic, {outer = cyclic}
show(cyclic, {}, {1, {2}, x = "y"}, {{1, 2}, {3, 4}}, setmetatable({}, {__tostring = function() return "two\nlines" end}),
     setmetatable({}, {__tostring = function() error("none") end}), {1, {2, {3, {4, {5, {6}}}}}})
local many = {}
for i = 1, 30 do many[i] = gauge end
show({many = many, texts = {("a "):rep(30), "x", "x", "x", "x", "x", "x", "x", "x", "x", "x", "x"}})
show(orbis_factory.TreeNodeBase("leaf")) -- no parent, and a list of no children
