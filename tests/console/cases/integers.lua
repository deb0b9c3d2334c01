-- Numbers for int32 inputs: whole and in range, or refused; never cut.
local a = orbis_factory.Adder()
for _, number in ipairs({0, -2147483648, 2147483647, 7.0, -0.0}) do
  print(number, a:getSum(number, 0))
end
for _, value in ipairs({2147483648, -2147483649, 0.5, 0 / 0, math.huge, -math.huge, 1e300, math.maxinteger,
                        math.mininteger, (1 << 53) + 1, "1", {1, 2}, {}, a, null, cases.large(0)}) do
  local ok, err = pcall(a.getSum, a, value, 1)
  print(ok, err.identifier)
end
print(a.total, a:getSum(2147483647, 1), a.total)
for _, inputs in ipairs {{0.5, 1}, {1}, {1, 2, 3}} do print(select(2, pcall(a.getSum, a, table.unpack(inputs)))) end
print(select(2, pcall(orbis_factory.Adder, "x")))
