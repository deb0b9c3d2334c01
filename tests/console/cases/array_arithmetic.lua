-- Arithmetic and comparison of arrays, element by element, beside the same in Lua's own numbers.
local refused = loadfile("../refused.lua")(tostring)
local limits = {int8 = {-128, 127}, uint8 = {0, 255}, int16 = {-32768, 32767}, uint16 = {0, 65535}, int32 = {-1 << 31, (1 << 31) - 1},
  uint32 = {0, (1 << 32) - 1}, int64 = {math.mininteger, math.maxinteger}, uint64 = {0, math.maxinteger}}
local function round(x) return x < 0 and math.ceil(x - 0.5) or math.floor(x + 0.5) end
local operators = {["+"] = function(a, b) return a + b end, ["-"] = function(a, b) return a - b end, ["*"] = function(a, b) return a * b end,
  ["/"] = function(a, b) return a / b end, ["//"] = function(a, b) return a // b end, ["%"] = function(a, b) return a % b end,
  ["^"] = function(a, b) return a ^ b end, neg = function(a) return -a end}
-- What an integer result is: nil where there is none. Doubles are exact for all but the 64-bit classes.
local function expected(name, f, a, b, low, high)
  if b == 0 and (name == "/" or name == "//" or name == "%") then return nil end
  local result = f(a + 0.0, b + 0.0)
  if name == "/" or (name == "^" and b < 0) then result = round(result) end
  return result >= low and result <= high and math.tointeger(result) or nil
end
local compared, wrong = 0, 0
for class, range in pairs(limits) do
  local low, high = table.unpack(range)
  local is64 = class:find("64")
  local values = {low, low + 1, 0, 1, 2, 3, 7, high // 2, high - 1, high}
  if low < 0 then for _, v in ipairs {-1, -2, -5} do values[#values + 1] = v end end
  for name, f in pairs(operators) do
    for _, a in ipairs(values) do
      for _, b in ipairs(values) do
        if not is64 or (math.abs(a) < 100 and a ~= low and math.abs(b) < 100 and b ~= low) then
          local want = expected(name, f, a, b, low, high)
          for _, operands in ipairs {{array(class, a), array(class, b)}, {array(class, a), b}, {array(class, a), array("double", b)},
                                     name ~= "neg" and {a, array(class, b)} or nil} do
            local ok, result = pcall(f, table.unpack(operands))
            compared = compared + 1
            if ok ~= (want ~= nil) or ok and (_ENV.class(result) ~= class or result[1] ~= want) then
              wrong = wrong + 1
              if wrong < 10 then print(class, name, a, b, want, result) end
            end
          end
        end
      end
    end
  end
end
print(compared > 20000, wrong)
for name, f in pairs(operators) do -- floating classes are as Lua's floats
  for _, a in ipairs {0.0, -0.0, 1.5, -2.5, 7.0, 1 / 0, -1 / 0, 0 / 0, 1e300} do
    for _, b in ipairs {0.0, -0.0, 2.0, -0.3, 1 / 0, 0 / 0} do
      local result, want = f(array("double", a), b)[1], f(a, b)
      if result ~= want and (result == result or want == want) or result == 0 and 1 / result ~= 1 / want then print(name, a, b, result, want) end
    end
  end
end

local max, min = array("int64", math.maxinteger), array("int64", math.mininteger)
local huge = array("uint64", "18446744073709551615")
print(max - 1, min + 1, max // 2, min % 10, huge - 1.0, huge // 2, huge / 2, array("int64", 3) ^ 39, array("int64", -2) ^ 63, max * 1.0, max - array {1, 2})
for _, f in ipairs {function() return max + 1 end, function() return -min end, function() return min // -1 end, function() return min / -1 end,
  function() return huge * 2 end, function() return array("int64", 3) ^ 40 end, function() return max * 1.5 end, function() return min % 0 end} do refused(f) end

local a = array("int8", {{1, 2, 3}, {4, 5, 6}})
print(a + {{10}, {20}}, 0.5 * a, a - array("single", 0.5), {10, 20, 21} * a, array("logical", {true, false}) + true, -array("logical", true))
print(array("single", 0.1) + 0.1, class(array("single", 1) + array("double", 1)), array("double", {}, 0, 3) + array("double", {1, 2, 3}),
  size(array("int8", {}, 2, 0) + array("int8", {{1}, {2}})))
for _, f in ipairs {function() return a * 30 end, function() return a / 0 end, function() return a + 0 / 0 end, function() return a + array("uint8", 1) end,
  function() return a + {1, 2} end, function() return a + array("int8", 0, 3, 2) end, function() return array("char", "x") + 1 end,
  function() return a + "1" end, function() return a + nil end, function() return a + {"x"} end, function() return a + cases end,
  function() return array("double", 1) + ((1 << 53) + 1) end, function() return array("double", 0, 20000, 1) + array("double", 0, 1, 20000) end,
  function() return a + cases.Probe() end, function() return cases.Changing() + a end,
  function() return a + cases.Changing() end, function() return a:summ() end} do refused(f) end

-- comparison: numbers of any classes, exactly
local values = {-1, 0, 1, 2.5, 1 << 53, (1 << 53) + 1, 2.0 ^ 53, math.maxinteger, 2.0 ^ 63, math.mininteger, -2.0 ^ 63, 1 / 0, -1 / 0, 0 / 0, -0.5}
local relations = {eq = function(x, y) return x == y end, ne = function(x, y) return x ~= y end, lt = function(x, y) return x < y end,
  le = function(x, y) return x <= y end, gt = function(x, y) return x > y end, ge = function(x, y) return x >= y end}
local function holders(value)
  local held = {}
  for _, class in ipairs {"double", "int64", "uint64", "int32", "single"} do
    local ok, holder = pcall(array, class, value)
    if ok and (class ~= "single" or holder[1] == value) then held[#held + 1] = holder end
  end
  return held
end
for name, relation in pairs(relations) do
  for _, x in ipairs(values) do
    for _, y in ipairs(values) do
      for _, first in ipairs(holders(x)) do
        for _, second in ipairs(holders(y)) do
          if first[name](first, second)[1] ~= relation(x, y) then print(name, class(first), x, class(second), y) end
        end
      end
    end
  end
end
print(huge:gt(max), huge:eq(2.0 ^ 64), huge:lt(2.0 ^ 64), a:ge(3), a:lt({{3}, {5}}), a:eq(array("double", {1, 0, 3})))
print(a:gt(1) & a:lt(5), a:lt(2) | a:gt(5), a:gt(1) ~ a:gt(2), ~a:gt(1), true & array("logical", {true, false}))
for _, f in ipairs {function() return a & a end, function() return a:gt(1) & 1 end, function() return a:lt({1, 2}) end, function() return a.lt(1, a) end,
  function() return a:eq("x") end} do refused(f) end

local many = array("double", 1, 700, 3) * array("double", {1, 2, 3})
print(size(many), many[700], many[701], many[2100], (many + many):eq(many * 2) == array("logical", true, 700, 3))
