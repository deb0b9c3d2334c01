-- Properties, and every way to get a member wrong.
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
local Probe, adder = cases.Probe, orbis_factory.Adder()
for _, call in ipairs {{assign, p, "fixed", 1}, {assign, p, "twin", 1}, {assign, p, "vale", 1}, {assign, p, "value", coroutine.create(print)},
  {assign, Probe, "value", 1}, {assign, Probe, "twin", 1}, {index, p, "vallue"}, {index, p, "zzz"}, {index, p, 1},
  {index, Probe, "value"}, {index, Probe, "commn"}, {p.twin}, {p.twin, 5}, {p.twin, adder}, {p.give, p, q}, {p.give, array(Probe, {p, q})}, {p.pair, p, adder},
  {p.fail, p}, {Probe, 1, 2}, {index, cases, "Prob"}, {index, cases, "PROBE"}, {index, cases, 1}, {assign, cases, "x", 1},
  {function() cases() end}, {function() return nosuch.Thing end}} do
  print(select(2, pcall(table.unpack(call))))
end
print(nosuch, _G["cases.Probe"], rawequal(cases, _G.cases))
print(p:same() == p, cases.Probe.same(p) == p, cases.Probe.same(7), class(cases.Probe.same(orbis_factory.Adder())))
print(cases.Probe.give(q) == q, p.give(q) == q)
