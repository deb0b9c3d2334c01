-- The built-in sample from a script: construct, call, compare, give back.
local Adder = orbis_factory.Adder
local a, b = Adder(), orbis_factory.Adder(10)
print(a, class(a), isvalid(a))
print(a:getSum(1, 2), math.type(a:getSum(1, 2)), a.total, b.total)
print(a:getSumOfTen(1, 2, 3, 4, 5, 6, 7, 8, 9, 10), Adder.zero(), a.zero())
print(select("#", a:reset()), a.total)
local sum = a.getSum
print(sum(a, 20, 22), sum(b, 1, 1), Adder.getSum(b, 2, 2), sum == a.getSum)
print(a == a, a == b, Adder == orbis_factory.Adder, a ~= nil, a == 1)
print(b:getSum(2147483647, 1), b.total)
print(orbis_factory, Adder)
orbis_factory.dumpReg = nil -- refused: see the report
