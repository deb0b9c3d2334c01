-- Values that the host has nothing for are refused, each with its reason.
local refused = loadfile("../refused.lua")(tostring)
local cycle = {}
cycle[1] = cycle
for _, value in ipairs {coroutine.create(print), io.stdout, cases, cases.Probe, {orbis_factory.Adder}, {1, x = 1},
  {1, 2, [4] = 4}, {1, nil, 3}, {[1.5] = 1}, {0.5, (1 << 53) + 1}, {{1}, {2, x = 2}}, cycle} do
  refused(cases.echo, value)
end
local deep = {"bottom"}
for _ = 1, 199 do deep = {deep} end
print(#cases.echo(deep))
refused(cases.echo, {deep})
local given = cases.Probe()
do local closed <close> = given end
refused(cases.echo, given)
refused(cases.echo, {given})
print(pcall(cases.echo))
print(select("#", pcall(cases.echo, 1, 2)))
