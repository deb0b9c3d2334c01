-- Values that the host has nothing for are refused, each with its reason.
local function refused(...)
  print(select(2, pcall(cases.echo, ...)))
end

refused(print)
refused(coroutine.create(print))
refused(io.stdout)
refused(cases)
refused(cases.Probe)
refused({orbis_factory.Adder})
refused({x = 1})
refused({1, 2, [4] = 4})
refused({1, nil, 3})
refused({[1.5] = 1})
refused({0.5, (1 << 53) + 1})
refused({{1}, {x = 2}})
local cycle = {}
cycle[1] = cycle
refused(cycle)
local deep = {"bottom"}
for _ = 1, 199 do deep = {deep} end
print(#cases.echo(deep))
refused({deep})
local given = cases.Probe()
do local closed <close> = given end
refused(given)
refused({given})
print(pcall(cases.echo))
print(select("#", pcall(cases.echo, 1, 2)))
