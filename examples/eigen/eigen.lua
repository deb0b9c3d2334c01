local function show(...) print(array("double", ...)) end

local lu = eigen.LU({{4, 1, 0}, {1, 3, 1}, {0, 1, 2}})
print(lu:rank(), lu.determinant)
show(lu:solve({6, 10, 8}))
show(lu:inverse())

local line = eigen.QR({{1, 0}, {1, 1}, {1, 2}, {1, 3}})
show(line:solve({1, 3, 5, 7.2}))

local symmetric = eigen.Symmetric({{2, 1}, {1, 2}})
show(symmetric.values)
show(symmetric.vectors)

local value, row, column = table.unpack(eigen.smallest({{3, 1, 4}, {1, -5, 9}}))
print(value, row, column)

local quarter = eigen.Quaternion.about(math.pi / 2, {0, 0, 1})
show((quarter * quarter)({1, 2, 3}))
print(eigen.SingleQuaternion.about(math.pi / 2, {0, 0, 1}).coefficients)

print(pcall(lu.solve, lu, {1, 2}))
print(pcall(eigen.LU, {{1, 2}, {3}}))
print(select(2, pcall(quarter, {1, 2})).identifier)
print(pcall(eigen.smallest, {}))
