-- run: --no-builtin SCRIPT
-- Enumerations: defined by a script, used by name, by number and as objects.
local refused = loadfile("../refused.lua")(function(err) return tostring(err):match("[^\n]*$") end)
local function index(object, key) return object[key] end
local function assign(object, key, value) object[key] = value end

local Color = enumeration("palette.Color", {"Red", {"Green", 5}, "Blue", {"Crimson", 0}})
print(Color, palette.Color == Color, class(Color))
local red = palette.Color.Red
print(red, class(red), isvalid(red), tostring(red) == "Red", objects()[1].owner)
print(red == Color.Red, red == Color.Crimson, red == Color.Green, red == "Red", Color.Crimson)
print(cases.hue("Blue"), cases.hue(5), cases.hue(red) == red, cases.hue(cases.hue("Crimson")))
for _, hues in ipairs {{red, Color.Blue}, {"Green", red, 6}, {0, 5}, "Blue", {"Red"}, {}} do
  print(cases.hues(hues))
end
help(Color)
help("palette.Color.Green")
local names = {}
for name, hue in pairs(Color) do names[#names + 1] = name .. "=" .. tostring(hue) end
print(table.concat(names, " "))
for _, value in ipairs {"Purple", "red", "", 7, 1.5, true, null, {}, {"Red", "Red"}, cases.Probe()} do
  refused(cases.hue, value)
end
for _, call in ipairs {{cases.hues, {"Red", "Purple"}}, {cases.hues, {red, null}}, {index, Color, "Gren"},
  {index, red, "Green"}, {assign, Color, "Red", 1}, {Color}, {delete, red}, {delete, {red, Color.Blue}}} do
  refused(table.unpack(call))
end
print(isvalid(red))
for _, inputs in ipairs {{"palette.Color", {"A"}}, {"palette.Empty", {}}, {"palette.Twice", {"A", "A"}},
  {"palette.Wrong", {"A", {"B"}}}, {"palette.Wrong", {{"A", 1.5}}}, {"palette.Wrong", {1}}, {"palette.Wrong", {{"A", math.maxinteger}, "B"}},
  {"palette..Wrong", {"A"}}, {"palette.Wrong", {""}}, {5}} do
  refused(enumeration, table.unpack(inputs))
end
print(palette.Color.Blue, pcall(index, palette, "Empty"))
print(enumeration("Wide", {{"Low", math.mininteger}, {"High", math.maxinteger}}).High)
withvm(function()
  refused(cases.hue, red)
  refused(cases.hue, "Red")
  print(tostring(red), enumeration("palette.Color", {"Red"}).Red == red)
end)
