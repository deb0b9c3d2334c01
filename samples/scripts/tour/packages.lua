-- The tour's section about packages.
local section, show = ...
local of = orbis_factory

section("Packages: written by hand, registered by name, one in another")
for _, name in ipairs {"P1.C1", "P1.P2.C2", "P3.C3", "NP1.N2", "NP1.NP2.N1", "NP1.NP2.N3"} do
  local found = of
  for part in name:gmatch("%w+") do found = found[part] end
  show(name, found, "class orbis_factory." .. name)
end
io.write(("  %-42s "):format("testPkgStuff() prints"))
of.testPkgStuff()
print()
