-- Arrays of the host: how they are made, read, written, compared and shown, and what is refused.
local refused, eachRefused = loadfile("../refused.lua")(tostring)
local function show(...)
  local a = array(...)
  local rows, columns = size(a)
  print(class(a), rows, columns, #a, a)
end

for _, inputs in ipairs {{"double"}, {"double", {}, 0, 3}, {"double", {{1, 2.5}, {-0.0, 1 / 0}, {0 / 0, -1 / 0}}},
  {"single", {0.1, 2.0 ^ 100, 123456789, 1e11, 1e-60}}, {"int32", {1, 2, 3, 4, 5, 6}, 3, 2},
  {"uint64", {"18446744073709551615", 2.0 ^ 63, array("uint64", "9223372036854775808"), 5}}, {"int64", math.mininteger},
  {"logical", {true, 0, 1.0, false}}, {"uint8", true, 2, 3}, {"char", "gr\u{fc}n"},
  {"char", {"ab", array("string", "cd")}}, {"char", {0x61, 0xD83D, 0xDE00}}, {"char", "abcdef", 2, 3},
  {"string", "one\0two"}, {"string", {{"a", missing}, {"\u{1f600} long enough to be cut short", ""}}},
  {"string", array("char", {"abc"}), 1, 2}, {"string", missing, 2, 1},
  {"cell", {1, null, {2, 3}, {4, "x"}, "text", missing, array("int8", 5)}, 1, 7}, {"cell", {{1, 2}, {3, 4}}},
  {"int16", array("double", {1, 2}), 2, 1}, {"uint16", array("char", "\u{1f600}")},
  {"double", 1 / 3, 12, 30}} do show(table.unpack(inputs)) end
local p, q = cases.Probe(), cases.Probe()
show(cases.Probe, {p, null})
print(class(array {1, 2}), class(array({true, false}, 2, 1)), class(array {{1, 2}, {3, 4}}), class(array {p, p}), class(array {1, "x"}), array {})
show("cases.Probe", p, 2, 2)

local a = array("int8", {{1, 2, 3}, {4, 5, 6}})
print(a[1], a[2], a[{1, 3}], a[6.0], a[0], a[7], a[{3, 1}], a[{1, 4}], a[math.mininteger])
local passed = cases.Probe()
passed.value = a
a[2], a[{2, 3}] = 40, -6
print(a, passed.value[2], passed.value == a)
local s = array("string", {"a", missing})
s[1], s[2] = missing, "b"
print(s[1] == missing, s[1], s[2], s == array("string", {missing, "b"}), s == array("string", {missing, "c"}))
s[2] = array("string", missing)
print(s[2] == missing, s)
local c = array("cell", {1, p})
c[1] = c
c[2] = {c, null}
print(c, c[1][1], c[1][2] == p, tolua(c)[2][1][1][1], tolua(c)[2][2])
for i, v in pairs(array("logical", {true, false})) do io.write(i, " ", tostring(v), " ") end
for i, v in ipairs(array("cell", {null, "x"})) do io.write(i, " ", tostring(v), " ") end
print()
print(array("double", 0) == array("double", -0.0), array("double", 0 / 0) == array("double", 0 / 0),
  array("double", 1) == array("single", 1), array("double", {1, 2}) == array("double", {1, 2}, 2, 1), a == 1, a == p)

local function lua(value)
  if type(value) ~= "table" then return (tostring(value)) end
  local parts = {}
  for i, element in ipairs(value) do parts[i] = lua(element) end
  return "{" .. table.concat(parts, ", ") .. "}"
end
print(lua(tolua(a)), lua(tolua(array("int8", {1, 2}, 2, 1))), lua(tolua(array("char", {"ab", "cd"}))))
print(lua(tolua(array("string", {"a", missing}, 2, 1))), tolua(array("string", "x")), lua(tolua(array("cell", {{1, 2}}))))
print(tolua(5), tolua(p) == p, lua(tolua(array("double", {}, 0, 3))), lua(tolua(array("cases.Probe", {p, null}))))

-- results: a Lua value where it is the same again, else the array
for _, v in ipairs({array("int8", {1, 2}), array("int8", 1), array("single", 0.5), array("uint64", 1 << 62),
                    array("logical", {}), array("double", {}, 0, 2), array("char", ""), array("char", "", 1, 0),
                    array("string", "x"), array("cell", {1}), array(cases.Probe), array(cases.Probe, {p, q})}) do
  local back = cases.echo(v)
  io.write(type(back), " ", tostring(back), "; ")
end
print(type(cases.echo(missing)))
print(class(asarray(cases.small)), class(asarray(passed, "value")), asarray(p.twin, p)[1] == p)
print(isvalid(array(cases.Probe, {p, q})), isvalid(array(cases.Probe, {p, null})), isvalid(a))
local probes = array(cases.Probe, {cases.Probe(), cases.Probe()})
delete(probes)
print(isvalid(probes), isvalid(probes[1]))

for class, values in pairs({int8 = {-129, 128}, uint8 = {-1, 256, 0.5, 0 / 0, "1"}, uint64 = {-1, "", "1x", 2.0 ^ 64, "18446744073709551616"},
                            int64 = {2.0 ^ 63, "1"}, double = {(1 << 53) + 1, "1", p, missing},
                            single = {1e39, -3.5e38}, logical = {2, "true", null},
                            char = {65536, -1, 0.5, null}, string = {1, null, false}, ["cases.Probe"] = {1, missing}}) do
  for _, value in ipairs(values) do
    local ok, err = pcall(array, class, {value})
    if ok or err.identifier ~= "VELMARA:console:element" then print(class, value, ok, err) end
  end
end
for _, inputs in ipairs {{}, {"in8", 1}, {"orbis_factory", 1}, {"int8", {1, 300}}, {"int8", {{1, 2}, {3, "x"}}},
  {"int8", {{1, 2}, {3}}}, {"int8", {1, 2, x = 3}}, {"char", {"ab", "c"}}, {"char", "ab", 2, 3},
  {"string", array("char", {"ab", "cd"})}, {"char", array("string", missing)}, {"cell", {io.stdout}},
  {cases.Probe, orbis_factory.Adder()}, {"double", 0, -1, 2}, {"double", 0, 1.5, 2}, {"double", 0, 2},
  {"double", {1, 2, 3}, 2, 2}, {"double", {1, 2, 3}, 0, 0}} do
  refused(array, table.unpack(inputs))
end
local function put(key, value) a[key] = value end
local function at(key) return a[key] end
for _, entry in ipairs {{7, 1}, {{3, 1}, 1}, {1, 128}, {1, 0 / 0}, {"x", 1}} do refused(put, table.unpack(entry)) end
for _, key in ipairs {"x", {1}, 1.5, {1, 0.5}, cases} do refused(at, key) end
refused(function() s[1] = 5 end)
refused(function() return missing < null end)
refused(function() return cases .. 1 end)
local big, alive = array("double", 0, 100000, 1), setmetatable({}, {__mode = "k"})
for _ = 1, 100 do alive[asarray(cases.echo, big)] = true end
local kept = 0
for _ in pairs(alive) do kept = kept + 1 end
print("collected meanwhile:", kept < 50)
eachRefused {{asarray, print}, {asarray, p, "nothing"}, {asarray, cases.echo}, {size}, {tolua}}
print(a, s)

-- sizes beyond all memory, and little that stands for as much
eachRefused {{array, "double", 0, math.maxinteger, math.maxinteger}, {array, "double", 0, 1 << 32, 1 << 32},
  {array, "int8", 0, 1 << 31, 1}, {array, "string", "x", 1 << 24, 1}}
local doubled, other = array("cell", {1}), array("cell", {1})
for _ = 1, 100 do doubled, other = array("cell", {doubled, doubled}), array("cell", {other, other}) end
print(doubled == other, cases.echo(doubled) == other)
refused(tolua, doubled)
local tables = {1, "x"}
for _ = 1, 100 do tables = {tables, tables} end
refused(cases.echo, tables)
local deep = array("cell", {})
for _ = 1, 20000 do deep = array("cell", {deep}) end
print(deep, deep == cases.echo(deep))
refused(tolua, deep)
local large, left = setmetatable({}, {__mode = "v"}), 0
for i = 1, 1000 do large[i] = array("double", 1, 1, 100000) end -- Lua sees nothing of what they take
for _ in pairs(large) do left = left + 1 end
print(left < 50)

-- finalizers that get at an array in the midst of its use
local target = array("cell", {{1, "a"}, {2, "b"}})
for i = 1, 3000 do
  setmetatable({}, {__gc = function() target[1] = {i, "new"} end})
  if #target[1] ~= 2 then print("torn") end
end
local closed
do local given <close> = array("double", {1, 2}) closed = given end
print(closed)
refused(function() return closed[1] end)
refused(function() closed[1] = 1 end)
refused(function() return #closed end)
eachRefused {{cases.echo, closed}, {array, "double", closed}}
