-- The picture of live objects, as the text that Graphviz reads.
local count = #objects()
--- Prints titles and lines of the boxes, then the arrows.
local function outline(...)
  for line in graph(...):gmatch("[^\n]+") do
    local box, label, style = line:match("^  (n%d+) %[label=<(.*)>, fillcolor=(.*)%]")
    if box then
      print(box, label:gsub("<BR[^>]*>", " | "):gsub("<[^>]*>", ""), style:match(", (.*)"))
    elseif line:find("->", 1, true) or line:find("^  label") then
      print(line)
    end
  end
end
local probe, other = cases.Probe(), cases.Probe()
probe.value = 'a "b" {c} <d> & \\N\n\0\u{e9}\u{ffff}'
print(graph(probe, {properties = 1}))

-- cells in cells, what fails or is private, enumerators, and a getter that draws its own object
local gauge = callbacks.Gauge()
callbacks.keep(function(n)
  if n == 1 then outline(gauge) end
  return n
end)
probe.value = {{other, gauge, 1.5}, {"text", null, other, probe}}
enumeration("strange.E", {"A\xc3<"})
other.value = strange.E["A\xc3<"]
outline(probe)
outline({gauge, other})
callbacks.drop()
outline(array("cases.Probe", {probe, null}), {depth = 0, properties = 0})

-- what is further away, or not there any more; objects that are new at each reading
local root = orbis_factory.TreeNodeBase("root")
local leaf, lost = orbis_factory.TreeNodeDerived("leaf", 3), orbis_factory.TreeNodeBase("lost")
root:add(leaf)
delete(lost)
local tree = orbis_factory.BasicTree("plum")
for i = 1, 2 do tree:grow():bear(i) end
collectgarbage()
for depth = 0, 2 do outline({tree, root}, {depth = depth, properties = 2}) end
outline(lost)

-- classes, handles, and all objects of the machine
local shed, person = orbis_factory.Container("shed"), orbis_factory.Person("Ann")
local item = shed:add("axe", 2)
person:borrow(item)
local burnt = orbis_factory.Container("burnt")
local rake = burnt:add("rake", 1)
delete(burnt) -- native code destroys the rake
outline({item, leaf}, {superclasses = true, handles = true, depth = 1})
outline {properties = 0}
outline {limit = 3, superclasses = true, handles = true}
outline(person, {limit = 1, superclasses = true})
local many = {}
for i = 1, 1001 do many[i] = cases.Probe() end
outline()
outline(many)
withvm(function() print((graph():gsub("\n.*", ""))) end)

for _, wrong in ipairs {{5}, {{1, 2}}, {cases}, {"x"}, {probe, {depth = -1}}, {probe, {depth = 1.5}}, {probe, {depth = "1"}},
                        {{superclasses = 1}}, {{format = "png"}}, {{file = "a\0.svg"}}, {{wide = true}}, {probe, {1}},
                        {probe, 5}} do
  print(select(2, pcall(graph, table.unpack(wrong))))
end
print(graph {} == graph(array("cell", {})), select("#", graph()))
probe.value = null -- it held itself
