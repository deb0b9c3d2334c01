-- The list of live objects tells who holds them.
print(objects())
local p, a = cases.Probe(), orbis_factory.Adder(1)
local twin = p:twin()
p.value = {a, a}
print(objects())
local list = objects()
print(#list, list[2].class, list[2].owner, list[2].valid, list[2].external, list[2].internal, list[2].weak, list[2].native)
p.value = null
twin = nil
delete(a)
collectgarbage()
print(objects())
withvm(function() print(#objects(), cases.Probe(), #objects()) end)
list[1] = 5
print(list)
p = nil
collectgarbage()
print(#objects())
