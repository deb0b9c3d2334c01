local p = polynomial.Polynomial({1, 2})
local q = polynomial.Polynomial({0, 0, 3})
print(p + q, p * 2, 2 * p)
print(p(10), #q, q[3])
q[1] = 5
print(q, p == q, p == polynomial.Polynomial({1, 2}), p ~= nil)
show(q, {p, q})
local twin = copy(p)
twin[1] = 7
print(twin, p, polynomial.Polynomial(p) == p)
for number, coefficient in pairs(q) do
    io.write(number, ": ", coefficient, "  ")
end
print()
print((select(2, pcall(function() return p - q end)):gsub("^.*: ", "")))
print(pcall(function() return p + 1 end))
print(pcall(function() return p[0] end))
delete(p)
print(isvalid(p), tostring(p), p == q)
