-- The order in which the root package is populated: where two names are taken already, the earlier one is refused.
local order = {"Adder", "Week", "Weekday", "MFVT", "MFDT", "Prop", "TreeNodeBase", "TreeNodeDerived", "BinaryGraphNode",
  "P1", "P3", "NP1", "SharedBase", "SharedDerived", "StdSharedBase", "StdSharedDerived", "Sauce", "Pasta", "Alfredo",
  "Marinara", "VectorStringIO", "BasicA", "BasicB", "BasicTree", "A", "B", "C", "D", "Z", "Item", "Person", "BasicTypes",
  "Container", "Ctor", "Signatures1", "testPkgStuff", "dumpReg"}
local file
for _, module in ipairs(modules()) do
  if module.name == "orbis_factory" then file = module.file end
end
unloadmodule("orbis_factory")

--- What is refused when these names are taken before the module is loaded.
local function refused(...)
  for _, name in ipairs {...} do enumeration("orbis_factory." .. name, {"Taken"}) end
  loadmodule(file)
  local _, err = pcall(help, "orbis_factory")
  return err.text:match('"orbis_factory%.([%w.]+)" is published already') or err.text, tostring(err)
end

print(withvm(refused, order[1]))
for i = 2, #order do
  local found = withvm(refused, order[i], order[i - 1])
  if found ~= order[i - 1] then print(order[i], found) end
end
print(withvm(refused, order[#order]))
