-- Inputs by the names of their parameters.
local of, Probe = orbis_factory, cases.Probe
local adder, kitchen = of.Adder(), of.P3.C3.kitchen()
print(adder:getSum{b = 2, a = 40}, adder.getSum(adder, {a = 1, b = 2}), of.Ctor{minutes = 3, hours = 1}.text)
print(kitchen:brew{tea = "Assam"}, kitchen:brew{minutes = 2, tea = "Assam"}, kitchen:brew{extra = "milk", minutes = 2, tea = "Assam"})
for _, call in ipairs {{adder.getSum, adder, {a = 1, bee = 2}}, {adder.getSum, adder, {a = 1}}, {adder.getSum, adder, {a = 1, b = "x"}},
  {of.Ctor, {hours = 1, text = "x"}}, {kitchen.brew, kitchen, {tea = "A", extra = "x"}}, {adder.getSum, adder, {a = 1, b = 2}, 3},
  {adder.getSum, adder, setmetatable({a = 1, b = 2}, {})}, {adder.getSum, adder, {}}} do
  print(select(2, pcall(table.unpack(call))))
end
-- where a table of names is a value, it is never taken for names
print(class(Probe.same{value = 1}), class(Probe.same{other = 1}))
