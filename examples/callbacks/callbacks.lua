help(callbacks.findRoot)

local thermometer, warmest = callbacks.Thermometer(), -273
thermometer:onReading(function(celsius) warmest = math.max(warmest, celsius) end)
for _, celsius in ipairs {18, 23.5, 21} do thermometer:read(celsius) end
print("warmest", warmest)
thermometer:onReading(nil)
thermometer:read(40)
print("warmest", warmest)

print(string.format("%.6f", callbacks.findRoot(function(x) return x * x - 2 end, 0, 2)))
local falling = callbacks.line(-2, 3)
print(falling(1), callbacks.findRoot(falling, 0, 2))

print(select(2, pcall(callbacks.findRoot, function(x) error("no value at " .. x, 0) end, 0, 2)))
print(select(2, pcall(callbacks.findRoot, function() return "text" end, 0, 2)))
