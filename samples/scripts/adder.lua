-- A first look: a published native class, used from a script.

print("The module brings the package orbis_factory with the class Adder:")
help(orbis_factory.Adder)

print()
local adder = orbis_factory.Adder(10)
print("Adder(10)              ", adder)
print("adder:getSum(1, 2)     ", adder:getSum(1, 2))
print("adder.total            ", adder.total)
adder.total = 100
print("adder.total = 100      ", adder.total)
adder:reset()
print("adder:reset()          ", adder.total)
print("Adder.zero()           ", orbis_factory.Adder.zero())

print()
print("Mistakes give one clear sentence and change nothing:")
local function try(call, ...)
    local _, message = pcall(...)
    print("  " .. call)
    print("    " .. tostring(message):gsub("\n", "\n    "))
end
try("adder:getSum(1, 2.5)", adder.getSum, adder, 1, 2.5)
try("adder:getSum(1)", adder.getSum, adder, 1)
delete(adder)
try("adder:getSum(1, 2), deleted", adder.getSum, adder, 1, 2)

print()
local first = orbis_factory.Adder(1, 2)
print("The registry of native objects and their host objects:")
orbis_factory.dumpReg()
orbis_factory.testPkgStuff()
print()
