-- One kind of crossing, COUNT times: `velmara --module FILE crossings.lua NAME COUNT`. Two runs with different counts
-- under callgrind give the instructions of one, the loop included.
local adder, texts = crossings.Adder(), {}
local add, length, name, self = crossings.add, crossings.length, crossings.name, crossings.self
for i = 1, 1000 do texts[i] = "name of " .. i end
local choose, kind = crossings.choose, crossings.Kind19()
local function wrong() return adder:getSum("text", 2.0) end

local rows = {
  loop = function(count) for _ = 1, count do end end,
  call = function(count) for _ = 1, count do adder:getSum(1.0, 2.0) end end,
  read = function(count) for _ = 1, count do local _ = adder.total end end,
  write = function(count) for _ = 1, count do adder.total = 3.0 end end,
  create = function(count) for _ = 1, count do crossings.Adder() end end,
  createRecorded = function(count)
    recordlines()
    for _ = 1, count do crossings.Adder() end
  end,
  functionLocal = function(count) for _ = 1, count do add(1.0, 2.0) end end,
  functionName = function(count) for _ = 1, count do crossings.add(1.0, 2.0) end end,
  stringIn = function(count) for _ = 1, count do length("twelve bytes") end end,
  stringOut = function(count) for _ = 1, count do name() end end,
  object = function(count) for _ = 1, count do self(adder) end end,
  mixed = function(count) -- other names each time: a method, a property and a function of 64 each
    local wide, methods, properties, functions = crossings.Wide(), {}, {}, {}
    for i = 0, 63 do methods[i], properties[i], functions[i] = "get" .. i, "value" .. i, "add" .. i end
    for i = 1, count do
      local name = i * 37 % 64
      local _ = wide[methods[name]](wide), wide[properties[name]], crossings[functions[name]](1.0, 2.0)
    end
  end,
  overload = function(count) for _ = 1, count do choose(kind) end end,
  stringsIn = function(count) for _ = 1, count do crossings.count(texts) end end,
  stringsOut = function(count) for _ = 1, count do crossings.names() end end,
  wrongType = function(count) for _ = 1, count do pcall(wrong) end end,
  exception = function(count) for _ = 1, count do pcall(crossings.fail) end end,
}
rows[arg[1]](tonumber(arg[2]))
os.exit(0, false) -- excludes the end, whose cost depends on the count
