-- Properties, and every way to get a member wrong.
local function refused(f, ...)
  print(select(2, pcall(f, ...)))
end
local function index(object, key) return object[key] end
local function assign(object, key, value) object[key] = value end

local p, q = cases.Probe(), cases.Probe()
p.value, q.value = "mine", {1, 2}
print(p.value, q.value[2])
p.value = q
print(p.value == q, p.value.value[1])
p.value = nil
print(#p.value)
cases.Probe.common = 5
print(cases.Probe.common, p.common)
p.common = 6
print(cases.Probe.common)
print(#p.fixed)
refused(assign, p, "fixed", 1)
refused(assign, p, "twin", 1)
refused(assign, p, "vale", 1)
refused(assign, p, "value", print)
refused(assign, cases.Probe, "value", 1)
refused(assign, cases.Probe, "twin", 1)
refused(index, p, "vallue")
refused(index, p, "zzz")
refused(index, p, 1)
refused(index, cases.Probe, "value")
refused(index, cases.Probe, "commn")
refused(p.twin)
refused(p.twin, 5)
refused(p.twin, orbis_factory.Adder())
refused(p.pair, p, orbis_factory.Adder())
refused(p.fail, p)
refused(cases.Probe, 1, 2)
refused(index, cases, "Prob")
refused(index, cases, "PROBE")
refused(index, cases, 1)
refused(assign, cases, "x", 1)
refused(function() cases() end)
refused(function() return nosuch.Thing end)
print(nosuch, _G["cases.Probe"], rawequal(cases, _G.cases))
print(p:same() == p, cases.Probe.same(p) == p, cases.Probe.same(7), class(cases.Probe.same(orbis_factory.Adder())))
print(cases.Probe.give(q) == q, p.give(q) == q)
local names = {}
for name in pairs(orbis_factory) do names[#names + 1] = name end
print(#names > 2, orbis_factory.testPkgStuff ~= nil)
