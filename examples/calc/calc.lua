help(calc.Adder)

local a = calc.Adder(10)
print(a:getSum(1, 2), a.total)
a.total = 0
print(a.total)
print(pcall(a.getSum, a, "one", 2))
