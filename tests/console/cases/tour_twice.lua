-- The tour of the samples twice in one virtual machine, and in another while the first is in the middle of it.
arg[0] = "../../../samples/scripts/tour.lua"
local tour = assert(loadfile(arg[0]))
local file
for _, module in ipairs(modules()) do
  if module.name == "orbis_factory" then file = module.file end
end

--- What the tour prints; calls `meanwhile` as each section begins.
local function visit(meanwhile)
  local lines, outer = {}, print
  function print(...)
    local text = table.concat({tostring((...) or "")}, "\t")
    if lines[#lines] == "" and meanwhile then meanwhile(text) end
    lines[#lines + 1] = text
  end
  tour()
  print = outer
  return table.concat(lines, "\n")
end

local first = visit()
loadmodule(file)
local between
local second = visit(function(title)
  if title:match("^Owned by native") then between = withvm(visit) end
end)
print("twice the same", second == first, #first > 5000)
print("the same in between", between == first)
loadmodule(file)
print(orbis_factory)
