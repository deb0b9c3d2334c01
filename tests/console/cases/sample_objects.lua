-- The samples of objects: what they refuse, what they survive, and which side is destroyed with the other.
print(OrbisFactoryBuiltInTester():getInt8()) -- before anything of its package was needed
local of = orbis_factory
local refused, eachRefused = loadfile("../refused.lua")(function(err) -- of the candidates' reasons, the last one's
  return tostring(err):gsub("VELMARA:native:exception: Native code failed: ", "native: "):match("[^\n]*$")
end)
local function states(...)
  local texts = {}
  for _, object in ipairs({...}) do texts[#texts + 1] = isvalid(object) and "valid" or "ended" end
  print(table.concat(texts, " "))
end

-- outlines: levels, loops, and who stands where
local top = of.TreeNodeBase("1")
local lowest = top
for level = 2, 32 do
  local node = of.TreeNodeBase(tostring(level))
  lowest:add(node)
  lowest = node
end
eachRefused {{lowest.add, lowest, of.TreeNodeDerived("33", 1)}, {of.TreeNodeBase("0").add, of.TreeNodeBase("0"), top},
  {top.add, top, lowest}, {lowest.add, lowest, lowest}, {top.add, top, null}, {top.remove, top, lowest},
  {of.TreeNodeDerived, "x", -1}, {of.TreeNodeDerived, "x"}, {top.add, top, of.Container("x")}}
local middle = lowest.parent
delete(middle)
print(lowest.parent, isvalid(top), class(top.children))
top:remove(top.children)
print(top.children)
local many = of.TreeNodeBase("many")
for i = 1, 1000 do many:add(of.TreeNodeDerived("", i)) end
for i, child in ipairs(many.children) do if i % 2 == 0 then delete(child) end end
print(#many.children, many:pages())

-- ways: loops and hubs, destroyed in any order
local hub = of.BinaryGraphNode("hub")
local spokes = {}
for i = 1, 1000 do
  spokes[i] = of.BinaryGraphNode(tostring(i))
  spokes[i].left, spokes[i].right = hub, spokes[i - 1]
end
hub.left, hub.right = spokes[1], hub
delete(spokes[1])
print(hub.left, hub.right == hub, spokes[2].right, hub:walk("RRRR") == hub, hub:walk("L"), spokes[9]:walk("") == spokes[9])
print(#references(of.BinaryGraphNode("alone")), pcall(references, 5))
for _, reference in ipairs(references(spokes[3])) do print(reference.property, reference.object.name) end
delete(hub)
print(#references(spokes[2]))
print(spokes[1000].left, spokes[1000]:walk(("R"):rep(998)).name)
refused(spokes[2].walk, spokes[2], "LX")
refused(function() spokes[2].left = of.Container("x") end)
refused(function() spokes[2].left = {spokes[3], spokes[4]} end)

-- shared books and dancers
local Book, Dancer = of.SharedBase, of.StdSharedBase
eachRefused {{Book.shelve, null}, {Book.arrange, {Book("a"), of.Container("b")}}, {Book.arrange, {Book("a"), 3}},
  {Book.arrange, array(Book, {null})}, {of.SharedDerived, "a", 0}}
local kept = Book("kept")
kept:reserve() kept:reserve()
print(kept.holders, select(2, kept:cancelReservation(), kept.holders), select(2, kept:cancelReservation(), kept.holders))
Book.arrange({kept, kept})
print(kept.holders, Book.find("none"), Book.take("none"), Book.take("kept") == kept, kept.holders)
Book.arrange({})
print(kept.holders, #Book.shelf())
local ann, bob, eve = Dancer("Ann"), of.StdSharedDerived("Bob"), of.StdSharedDerived("Eve")
refused(function() ann.partner = ann end)
ann.partner = bob
eve.partner = bob
print(ann.partner, bob.partner == eve, bob.rival == eve, eve:role(), class(Dancer.inOrder({eve, ann})[2]), Dancer.inOrder({eve, ann})[1] == ann)
bob.partner = nil
print(eve.partner, #Dancer.inOrder({}))

-- sauces, apples, vehicles: made by native code only
eachRefused {{of.Alfredo}, {of.Sauce.cook, "soup"}}
local red, mild = of.Sauce.cook("marinara"), of.Sauce.cook("pasta sauce")
print(red:shape(), mild:shape(), mild:taste(), of.Sauce.cook("sauce"):taste())
eachRefused {{red.blend, red, red}, {red.blend, red, mild}}
local hot = of.Sauce.cook("marinara")
refused(function() while true do red, hot = hot:blend(red), red end end)
refused(function() while true do red:serve() end end)
refused(of.Sauce.pourAway, null)
of.Sauce.pourAway(red)
refused(function() return red:taste() end)
refused(of.Sauce.pourAway, red)
local tree = of.BasicTree()
local one, two = tree:grow(), tree:grow()
local apple = one:bear(900)
one:ripen(apple)
print(tree.sort, apple.grams, two.apples, #tree.branches)
eachRefused {{two.ripen, two, apple}, {two.drop, two, null}, {one.bear, one, 0}}
states(tree, one, two, apple)
delete(tree)
states(tree, one, two, apple)
local depot = of.Z.depot()
eachRefused {{of.Z}, {depot.build, depot, "plane", "x"}}
local car, boat = depot:build("car", "Car"), depot:build("boat", "Boat")
print(car:tow(boat), depot.boats[1] == boat, car:kind(), #depot.fleet)
refused(car.tow, car, car)
refused(function() return boat:drive() end)
depot:scrap(boat)
eachRefused {{car.tow, car, boat}, {depot.scrap, depot, null}}

-- items and persons
local box, crate = of.Container("box"), of.Container("crate")
local saw = box:add("saw", 2)
eachRefused {{box.add, box, "balloon", -1}, {box.addCopy, box, null}, {crate.discard, crate, saw}}
local copy = crate:addCopy(saw)
print(copy.name, copy.borrower, crate:weight(), crate.heaviest == copy)
local ada, bea = of.Person("Ada"), of.Person("Bea")
ada:borrow(saw)
eachRefused {{bea.borrow, bea, saw}, {bea.giveBack, bea, saw}, {bea.borrow, bea, null}, {of.Person.moveAway, null}}
of.Person.moveAway(ada)
print(saw.borrower, of.Person.find("Ada"), of.Person.count())
bea:borrow(saw) bea:borrow(copy)
delete(box)
print(bea.borrowed[1] == copy, isvalid(saw))
bea = nil
collectgarbage()
print(of.Person.find("Bea").name)

-- every owner is destroyed with its virtual machine, with all that it owns
withvm(function()
  print(of.Person.count(), #of.Sauce.pots(), of.Z.depot().fleet)
  of.Person("Ada"):borrow(of.Container("box"):add("saw", 1))
  Book.arrange({Book("a"), Book("b")})
  Book("reserved"):reserve()
  of.Sauce.cook("alfredo")
  of.Z.depot():build("amphibian", "Duck")
  of.BasicTree("wild"):grow():bear(5)
  OrbisFactoryBuiltInTester()
end)
unloadmodule("orbis_factory")
states(top, kept, ann, car, crate, depot)
