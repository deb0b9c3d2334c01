-- Parts of arrays, what their elements come to, their order and form, and ranges.
local refused = loadfile("../refused.lua")(tostring)
local function shown(value)
  if getmetatable(value) ~= "array" or class(value) == "uint64" then return value ~= value and "nan" or tostring(value) end
  local parts, rows, columns = {}, size(value)
  for k, element in pairs(value) do parts[k] = shown(element) end
  return ("%s %dx%d %s"):format(class(value), rows, columns, table.concat(parts, " "))
end
local function show(...)
  local texts = {}
  for i = 1, select("#", ...) do texts[i] = shown((select(i, ...))) end
  print(table.concat(texts, "; "))
end

local a = array("int8", {{1, 2, 3}, {4, 5, 6}})
show(a(2, 3), a(4), a({1, 2}, 2), a(nil, {3, 1}), a(1, nil), a(nil), a({6, 1, 1}), a({{6, 1}, {1, 2}}), a({}), a({}, nil))
show(a(a:gt(3)), a[a:gt(3)], a(nil, {true, false, true}), a(array("int64", {2, 1}), array("logical", {{false}, {true}, {true}})))
show(a(1, nil)({{1}, {2}}), a(nil, 1)({2, 1}), array("double", 5)({1, 1}), array("double", 5)({{1}, {1}}))
local cells, texts = array("cell", {1, "x", null}), array("string", {{"a", missing}, {"b", "c"}})
show(cells({3, 1}), texts({2, 1}, 2), array("char", "hello")({5, 4}), array(cases.Probe, {cases.Probe(), null})({2, 2}))
local function changed(source, ...)
  local copy = array(class(source), source)
  copy:set(...)
  return copy
end
show(changed(a, 1, 9), changed(a, {1, 6}, 0), changed(a, nil, 2, {{7}, {8}}), changed(a, 2, nil, {7, 8, 9}), changed(a, a:gt(4), {50, 60}),
  changed(a, nil, nil, a(nil, {3, 2, 1})), changed(a, {1, 1}, {5, 6}), changed(a, {}, 5), changed(a, nil, nil, array("double", 7)))
show(changed(cells, {1, 3}, "both"), changed(cells, {1, 2}, {"y", cells}), changed(texts, nil, 1, missing), changed(array("char", "hello"), {1, 2}, "yo"))
local b, f = array(a), asarray(cases.echo, print)
b[a:lt(3)] = 0
show(b, a)
for _, f in ipairs {function() return a(3, 1) end, function() return a(1, 4) end, function() return a(7) end, function() return a({1, -1}) end,
  function() return a(1.5) end, function() return a({1, 0 / 0}) end, function() return a("x") end, function() return a({"x"}) end,
  function() return a({true}) end, function() return a(a:eq(1), 1) end, function() return a:transpose()(a:eq(1)) end, function() return a() end,
  function() return a(1, 2, 3) end, function() return a(2 ^ 70) end, function() a:set(1, 1, 300) end, function() a:set(nil, 1, {1, 2, 3}) end,
  function() a:set(nil, nil, {{1, 2, 300}, {1, 2, 3}}) end, function() a:set(nil, nil, a:transpose()) end, function() a:set(1) end,
  function() a:set(1, nil) end, function() a[a] = "x" end, function() a[7] = 1 end,
  function() return array("int8", array {1, -129}) end, function() return f({1}) end, function() return f:reshape(1, 1) end, function() return a[null] end, function() return array(f) end} do refused(f) end
show(a)
-- a finalizer that releases the array, or writes to it, in the midst of its use
for i = 1, 300 do
  local target <const> = array("cell", {i, {i}, "x"})
  local other = array("cell", {0, 0, 0})
  setmetatable({}, {__gc = function() target[2] = "new" end})
  other:set(nil, target(nil))
  if other[1] ~= i or #target(nil) ~= 3 then print("torn") end
end

local m, none = array("int8", {{3, 1, 2}, {6, 5, -4}}), array("double", {}, 0, 3)
local n = array("double", {0 / 0, 3, 0 / 0, -1, 3})
for _, method in ipairs {"sum", "mean", "min", "max", "any", "all"} do
  for _, x in ipairs {m, n, none, array("logical", {true, false}), array("single", {0.1, 0.2})} do
    io.write(method, " ")
    show(x[method](x))
    show(x[method](x, 1))
    show(x[method](x, 2))
  end
end
show(array("uint64", "18446744073709551615"):sum(), array("int64", {math.maxinteger, 1, -1}):sum(), array("uint8", 255, 1000, 1):sum(),
  array("double", 0 / 0):any(), array("int64", math.maxinteger, 1, 3):mean() == 2.0 ^ 63, array("double", {0 / 0, 0 / 0}):max())
show(m:sort(), m:sort(1), m:sort(2), m:sort("descending"), m:sort(2, "descending"), n:sort(), n:sort(nil, "descending"))
show(m:order(), m:order(1), m:order(2), n:order(), n:order("descending"), none:sort(), none:order(1), array("logical", {true, false}):sort())
show(m:find(), m:gt(2):find(), m(1, nil):gt(1):find(), none:find(), n:find(), array("double", {0, 1}):find())
show(m:transpose(), none:transpose(), cells:transpose(), m:reshape(3, 2), m:reshape(nil, 2), m:reshape(6), none:reshape(0, 7), none:reshape(nil, 0))
show(range(1, 5), range(5, 1, -2), range(1, 0), range(0, 1.05, 0.5), range(3, 3), linspace(0, 1, 5), linspace(1, 2, 0), linspace(1, 2, 1))
local wide = array("double", {}, 0, math.maxinteger) -- has no elements to go through
wide:set(nil, nil, 1)
print(wide:transpose(), wide:transpose():transpose()(nil, nil), wide + 1, wide:find(), wide:sort(2), (wide:min(1)), wide:sum(2), wide)
local tenths = range(0, 0.3, 0.1)
print(#tenths, tenths[4] == 0.3, #range(0, 1, 0.1), linspace(0.1, 0.7, 7)[7] == 0.7, linspace(-1.7e308, 1.7e308, 3)[2])
for _, f in ipairs {function() return m:reshape(4, 2) end, function() return m:reshape(4) end, function() return m:reshape(nil, 0) end,
  function() return m:reshape(-1, 2) end, function() return none:reshape(1, 0.5) end, function() return m:reshape() end, function() return m:sum(3) end,
  function() return m:sum("x") end, function() return m:sort("up") end, function() return cells:sort() end, function() return texts:sum() end,
  function() return array("char", "x"):find() end, function() return array("int64", math.maxinteger, 2, 1):sum() end,
  function() return array("uint64", "18446744073709551615", 1, 2):sum(2) end, function() return range(0, 1, 0) end, function() return range(0, 1e300) end,
  function() return range(0, 0 / 0) end, function() return range(1) end, function() return linspace(0, 1, -1) end, function() return linspace(0, 1, 1 << 40) end,
  function() return m.sum(5) end} do refused(f) end
