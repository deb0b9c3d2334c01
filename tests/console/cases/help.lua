-- Help on everything that has a name, in 80 columns.
help(cases)
help(cases.Probe)
local p = cases.Probe()
help(p.pair)
help("cases.Probe.fixed")
help(cases.alive)
help("cases.echo")
methods(p)
methods(orbis_factory)
properties("cases.Probe")
properties(cases)
for _, value in ipairs {5, {1, 2}, {[{}] = 1}, array{1}.sum, print, function(a, b, ...) end, null} do help(value) end
help(show)
help("members")
probes = {first = p}
for _, name in ipairs {"string.format", "probes.first.pair"} do help(name) end
help(select(2, pcall(help, "cases.Prob")))
for _, name in ipairs {"cases.Prob", "cases.Probe.vaule", "Probee", "hepl", "echo", "x.y", "probes.first.pear"} do print(pcall(help, name)) end
print(pcall(help, nil))
print(pcall(methods, "cases.nosuch"))
print(pcall(members, 5))

-- the same as data
enumeration("palette.Color", {"Red", "Green"})
help(cases.hue)
show(members(p), members(callbacks)[1], members(palette.Color))
show(members(orbis_factory.Week)[2].parameters, members(p)[2].parameters)
p.value = "held"
for name, value in pairs(p) do print(name, value) end
for name, member in pairs(cases.Probe) do io.write(name, " ", member.kind, "; ") end
for name in pairs(callbacks) do io.write(name, " ") end
print()
for name, value in pairs(palette) do print(name, value) end
apropos("GIVE")
apropos("Enumerat")
apropos("no such text")
delete(p)
print(pcall(function() for _ in pairs(p) do end end))
print(class(cases), class(cases.Probe), class(p), class(1), class("x"), class(print), class(nil), class({x = 1}))
