-- One row, COUNT times: `rows.lua NAME COUNT`, in the console with the module `race`, or in Lua beside race_lua.so. Prints
-- the seconds of processor time. Two runs with different counts under callgrind give the instructions of one.
local race = race or require "race_lua"
local adder, texts, list, numbers = race.Adder(), {}, nil, nil
local add, length, name, self, describe = race.add, race.length, race.name, race.self, race.describe
local choose, kind = race.choose, race.Kind7()
for i = 1, 1000 do texts[i] = "name of " .. i end
local function wrong() return adder:getSum("text", 2.0) end
local function isRefused(f, ...) return not pcall(f, ...) end

-- Fails unless the binding does what every contestant does.
local function check()
  assert(adder:getSum(1.0, 2.0) == 3 and adder.total == 3 and add(1.0, 2.0) == 3)
  assert(length("twelve bytes") == 12 and name() == "twelve bytes" and self(adder) == adder)
  assert(describe(1.0) == 1 and describe("text") == 2 and describe(adder) == 3 and choose(kind) == 7)
  assert(race.count(texts) == 1000 and #race.names() == 1000 and race.countNumbers({1.5, 2.5}) == 2)
  assert(isRefused(add, 1.0) and isRefused(add, 1.0, 2.0, 3.0) and isRefused(add, "1", 2.0) and isRefused(length, 1.0))
  assert(isRefused(self, kind) and isRefused(choose, adder) and isRefused(describe, kind))
  assert(isRefused(race.count, {1.5}) and isRefused(race.countNumbers, {"text"}) and isRefused(race.fail))
  assert(isRefused(function() adder.total = "text" end) and isRefused(function() return adder.colour end))
end

local rows = {
  check = check,
  start = function(count) for _ = 1, count do adder:getSum(1.0, 2.0) end end,
  call = function(count) for _ = 1, count do adder:getSum(1.0, 2.0) end end,
  read = function(count) for _ = 1, count do local _ = adder.total end end,
  write = function(count) for _ = 1, count do adder.total = 3.0 end end,
  create = function(count) for _ = 1, count do race.Adder() end end,
  func = function(count) for _ = 1, count do add(1.0, 2.0) end end,
  stringIn = function(count) for _ = 1, count do length("twelve bytes") end end,
  stringOut = function(count) for _ = 1, count do name() end end,
  object = function(count) for _ = 1, count do self(adder) end end,
  overload3 = function(count) for _ = 1, count do describe(adder) end end,
  overload8 = function(count) for _ = 1, count do choose(kind) end end,
  stringsIn = function(count) for _ = 1, count do race.count(texts) end end,
  stringsOut = function(count) for _ = 1, count do race.names() end end,
  wrongType = function(count) for _ = 1, count do assert(not pcall(wrong)) end end,
  exception = function(count) for _ = 1, count do assert(not pcall(race.fail)) end end,
  listIn = function(count) for _ = 1, count do race.countNumbers(list) end end,
  listOut = function(count) for _ = 1, count do race.numbers() end end,
  arrayIn = function(count) for _ = 1, count do race.countNumbers(numbers) end end,
  arrayOut = function(count) for _ = 1, count do asarray(race.numbers) end end,
}
local row, count = arg[1], tonumber(arg[2])
if row == "listIn" then list = race.numbers() end
if row == "arrayIn" then numbers = asarray(race.numbers) end
local start = os.clock()
rows[row](count)
print(os.clock() - start)
os.exit(0, false) -- excludes the end, whose cost depends on the count
