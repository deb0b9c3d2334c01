-- Generated arrays of every class and shape cross unchanged, in every way that a script can take.
local state = 20240229
local function random(limit) -- 0 to limit - 1; the same on every system
  state = (state * 6364136223846793005 + 1442695040888963407)
  return (state >> 33) % limit
end
local function pick(list) return list[random(#list) + 1] end

local function bits() return random(1 << 31) << 33 ~ random(1 << 31) << 11 ~ random(1 << 31) end
local function integer(low, high)
  return function() return pick{low, high, 0, low + random(100), high - random(100), low // 2 + random(5)} end
end
local function float(format)
  return function()
    local bytes = string.pack(format == "<d" and "<i8" or "<I4", format == "<d" and bits() or bits() & 0xFFFFFFFF)
    return pick{string.unpack(format, bytes), 0.0, -0.0, 1 / 0, -1 / 0, 0 / 0, random(1000) / 8}
  end
end
local function text()
  local parts = {}
  for i = 1, random(12) do
    parts[i] = utf8.char(pick{0, random(128), 0xE0 + random(1000), 0xE000 + random(500), 0x10000 + random(99999)})
  end
  return table.concat(parts)
end

local made = {
  double = float("<d"), single = float("<f"), logical = function() return random(2) == 0 end,
  int8 = integer(-128, 127), uint8 = integer(0, 255), int16 = integer(-32768, 32767), uint16 = integer(0, 65535),
  int32 = integer(-(1 << 31), (1 << 31) - 1), uint32 = integer(0, (1 << 32) - 1),
  int64 = integer(math.mininteger, math.maxinteger),
  uint64 = function() return pick{0, math.maxinteger, bits() >> 1, string.format("%u", random(1 << 31)),
                                  "9223372036854775808", "18446744073709551615", 2.0 ^ 63} end,
  char = function() return random(65536) end, -- halves of pairs, too
  string = function() return pick{missing, "", text(), array("char", {0xD800 + random(2048), 0, 0x41})} end,
}
local probes = {cases.Probe(), cases.Probe(), null}
made["cases.Probe"] = function() return pick(probes) end
local classes = {}
for class in pairs(made) do classes[#classes + 1] = class end
table.sort(classes)

local generate
local depth = 0
function made.cell()
  depth = depth + 1
  local nested = depth < 4 and generate(pick(classes), {0, 1, 2}) or null
  depth = depth - 1
  return pick{null, made.double(), made.int64(), text(), made.logical(), pick(probes), {1, text()}, missing, nested}
end
classes[#classes + 1] = "cell"

function generate(class, sizes)
  local rows, columns = pick(sizes or {0, 1, 1, 2, 3, 7}), pick(sizes or {0, 1, 2, 3, 40})
  local values = {}
  for i = 1, rows * columns do values[i] = made[class]() end
  return array(class, values, rows, columns)
end

local count = 0
local function check(fact, a, what)
  count = count + 1
  if not fact then error(what .. " failed for " .. tostring(a), 0) end
end

local probe = cases.Probe()
local function crosses(a)
  check(asarray(cases.echo, a) == a and asarray(cases.Probe.same, a) == a, a, "a call")
  probe.value = a
  check(asarray(probe, "value") == a, a, "a property")
  local back = cases.echo(a)
  check(type(back) == "userdata" or #a <= 1 or ({double = 1, logical = 1, char = 1})[class(a)], a, "the kind of a result")
  if type(back) == "table" then check(asarray(cases.echo, back) == a, a, "a result") end
  if #a > 1 and type(back) == "userdata" then check(back == a, a, "a result") end
  local cells = array("cell", {a, null})
  local same = asarray(cases.echo, cells)
  check(same == cells and same[2] == null and class(same) == "cell", a, "a cell")
end

local function rebuilds(a)
  local name, rows, columns = class(a), size(a)
  local elements = {}
  for i, element in ipairs(a) do elements[i] = element end
  check(#elements == #a and #a == rows * columns and a[0] == nil and a[#a + 1] == nil, a, "iteration")
  check(array(name, a) == a and array(name, a, rows, columns) == a, a, "another array")
  if rows ~= columns then check(array(name, a, columns, rows) ~= a, a, "another size") end
  if name == "char" or name == "string" or name == "cell" then return end -- an element may be ill-formed, or a copy
  check(array(name, elements, rows, columns) == a, a, "elements")
  local lists = tolua(a)
  if columns == 1 and rows > 1 and name == "cases.Probe" then lists = array(name, lists, rows, 1) end
  if #a > 0 then check(array(name, lists) == a, a, "tables") end
end

local function writes(a)
  if #a == 0 then return end
  local copy, position, rows = array(class(a), a), random(#a) + 1, size(a)
  repeat
    copy[{(position - 1) % rows + 1, (position - 1) // rows + 1}] = made[class(a)]()
  until copy ~= a

  for i = 1, #a do
    local one = array(class(a), copy[i]) == array(class(a), a[i])
    check(one or i == position or class(a) == "cell", a, "the others")
  end
end

for _ = 1, 25 do
  for _, class in ipairs(classes) do
    local a = generate(class)
    crosses(a)
    rebuilds(a)
    writes(a)
  end
end
print(count > 5000)

for _ = 1, 300 do -- text alone: the same string, and the same units
  local s = text()
  check(cases.echo(s) == s and tolua(array("string", s)) == s and tolua(array("char", s)) == s, s, "text")
  local units = array("uint16", array("char", s))
  check(array("char", units) == array("char", s) and #units >= utf8.len(s), s, "units")
end

probe.value = null
probe, probes = nil, nil
collectgarbage()
print(#objects())
