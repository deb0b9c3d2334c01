-- Values that the host has nothing for are refused, each with its reason.
local function refused(...)
  print(select(2, pcall(cases.echo, ...)))
end
local function eachRefused(calls) for _, call in ipairs(calls) do refused(table.unpack(call)) end end

eachRefused {{print}, {coroutine.create(print)}, {io.stdout}, {cases}, {cases.Probe}, {{orbis_factory.Adder}},
  {{x = 1}}, {{1, 2, [4] = 4}}}
refused({1, nil, 3})
eachRefused {{{[1.5] = 1}}, {{0.5, (1 << 53) + 1}}, {{{1}, {x = 2}}}}
local cycle = {}
cycle[1] = cycle
refused(cycle)
local deep = {"bottom"}
for _ = 1, 199 do deep = {deep} end
print(#cases.echo(deep))
refused({deep})
local given = cases.Probe()
do local closed <close> = given end
eachRefused {{given}, {{given}}}
print(pcall(cases.echo))
print(select("#", pcall(cases.echo, 1, 2)))
