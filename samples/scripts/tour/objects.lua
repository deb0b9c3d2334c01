-- The tour's sections about objects: who owns them, and what becomes of the other side when one side ends.
-- section(title) begins a section; show(text, value, expected) prints a value and checks it; refused(text, f, ...) prints
-- the error that a call ends with.
local section, show, refused = ...
local of = orbis_factory

section("Deleted with its host object: an outline, whose headings hold each other")
local book = of.TreeNodeBase("Book")
book:add(of.TreeNodeDerived("Preface", 3))
book:add(of.TreeNodeBase("Part I"))
book.children[2]:add(of.TreeNodeDerived("Lifetimes", 40))
collectgarbage()
show("pages of the book", book:pages(), 43)
show("children: what each one is", class(book.children[1]) .. " " .. class(book.children[2]),
  "orbis_factory.TreeNodeDerived orbis_factory.TreeNodeBase")
local chapter = book.children[2].children -- a row of one is the object itself
show("one native object, one host object", chapter == book.children[2].children, true)
show("parent of the parent", chapter.parent.parent == book, true)
refused("below itself", chapter.add, chapter, book)
delete(book)
collectgarbage()
show("the book deleted: part and chapter end", chapter.parent, nil)
show("but for the chapter, which the script has", chapter:pages(), 40)

section("Properties that hold objects: ways in a park, which keep nothing alive")
local gate, pond = of.BinaryGraphNode("gate"), of.BinaryGraphNode("pond")
gate.left, gate.right, pond.right = pond, pond, gate
show("left of the gate, then right", gate:walk("LR").name, "gate")
show("visits: counted by native code", gate.visits, 1)
refused("... and set by nobody else", function() gate.visits = 9 end)
show("signpost: the ways that it names", #gate.signpost, 2)
show("told after each reading: readers", gate.readers, 1)
show("what the host is told that it refers to", #references(gate), 4)
delete(pond)
show("the pond deleted: left", gate.left, nil)
gate.left = gate
show("left = gate", gate.left == gate, true)
gate.left = nil
show("left = nil", gate.left, nil)

section("Shared with boost::shared_ptr: a library's books")
local Book = of.SharedBase
local tale, atlas = Book("Tale"), of.SharedDerived("Atlas", 5000)
Book.arrange({tale, atlas})
show("holders: the shelf and the script", tale.holders, 2)
show("class of the shelf's row", class(asarray(Book.shelf)), "orbis_factory.SharedBase")
show("and of the second book in it", class(Book.shelf()[2]), "orbis_factory.SharedDerived")
show("found, as a raw pointer", Book.find("Tale") == tale, true)
show("taken, as a shared pointer", Book.take("Tale") == tale, true)
show("holders: only the script", tale.holders, 1)
show("passed as a raw pointer", Book.isShelved(atlas), true)
delete(atlas)
show("deleted here, the shelf has it still", Book.find("Atlas"):label(), "Atlas, maps 1:5000")
show("reserved: kept by the virtual machine", select(2, tale:reserve(), tale.holders), 2)
tale:cancelReservation()

section("Shared with std::shared_ptr: a ball")
local Dancer = of.StdSharedBase
local ann, bob = Dancer("Ann"), Dancer.invite("Bob", true)
show("invited by native code", class(bob), "orbis_factory.StdSharedDerived")
ann.partner = bob
show("partners know each other", bob.partner == ann, true)
show("and do not own each other: holders", bob.holders, 1)
show("a base pointer to itself", bob:self() == bob, true)
show("in order", Dancer.inOrder({bob, ann})[1] == ann, true)
delete(bob)
show("he is gone: her partner", ann.partner, nil)

section("Owned by native code: a hierarchy of sauces, all bound as one native base")
local red, white = of.Sauce.cook("marinara"), of.Sauce.cook("alfredo")
show("what a pointer to a Sauce is", class(red), "orbis_factory.Marinara")
show("a member of the base's base", red.servings, 4)
show("overridden twice", white:taste(), "creamy")
show("chained", red:blend(of.Sauce.cook("marinara")):taste(), "of tomatoes")
red, white = nil, nil
collectgarbage()
show("the kitchen keeps them: pots", #of.Sauce.pots(), 3)
refused("scripts cannot make one", of.Sauce)
local pot = of.Sauce.pots()[1]
of.Sauce.pourAway(pot)
show("poured away natively", pot, "invalid orbis_factory.Marinara object")
for _, rest in ipairs(of.Sauce.pots()) do of.Sauce.pourAway(rest) end

section("Plain classes: an apple tree, which takes part in the registry by hand")
local tree = of.BasicTree("Boskoop")
show("made with a sort, and without", tree.sort .. " " .. of.BasicTree().sort, "Boskoop wild")
local branch = tree:grow()
local apple, other = branch:bear(100), branch:bear(80)
branch:ripen(apple)
show("another native apple, the same object", apple.grams, 150)
show("a row of apples", #branch.apples .. " " .. class(asarray(branch, "apples")), "2 orbis_factory.BasicA")
branch:drop(other)
show("what is left", branch.apples == apple, true)
show("dropped", other, "invalid orbis_factory.BasicA object")
delete(tree)
show("the tree deleted: its branch, its apple", isvalid(branch) or isvalid(apple), false)

section("Wrappable objects end their host objects: a depot of vehicles")
local depot = of.Z.depot()
local duck = depot:build("amphibian", "Duck")
depot:build("car", "Beetle")
show("B and C and A at once", duck:sail() .. ", " .. duck:drive(), "Duck sails, Duck drives")
show("one depot in a virtual machine", of.Z.depot() == depot, true)
show("fleet, as vehicles", class(depot.fleet[2]), "orbis_factory.C")
show("boats among them", depot.boats == duck, true)
depot:scrap(duck)
show("scrapped", duck, "invalid orbis_factory.D object")
depot:scrap(depot.fleet)

section("A parent that owns its children, and persons whom the town owns")
local box = of.Container("box")
local saw = box:add("saw", 1.5)
local copy = box:addCopy(saw)
show("a copy is another object", copy == saw, false)
show("heaviest", box.heaviest == saw, true)
of.Person("Ada"):borrow(saw)
collectgarbage()
local ada = of.Person.find("Ada")
show("the town keeps who nobody has", saw.borrower == ada, true)
refused("two of one name", of.Person, "Ada")
box:discard(saw)
show("discarded: the saw", saw, "invalid orbis_factory.Item object")
show("things that Ada has borrowed", #ada.borrowed, 0)
delete(box)
show("the box deleted: the copy", isvalid(copy), false)
of.Person.moveAway(ada)
show("moved away", isvalid(ada), false)

section("A class without a package, which gives a value of every primitive type")
local tester = OrbisFactoryBuiltInTester()
show("int8 to int64", table.concat({tester:getInt8(), tester:getInt16(), tester:getInt32(), tester:getInt64()}, " "),
  "127 32767 2147483647 9223372036854775807")
show("uint8 to uint32", table.concat({tester:getUint8(), tester:getUint16(), tester:getUint32()}, " "),
  "255 65535 4294967295")
show("uint64: more than a script's integer", tostring(tester:getUint64()), "18446744073709551615")
show("single, double", tester:getSingle() < tester:getDouble() and tester:getDouble() < math.huge, true)
show("logical, char", tostring(tester:getLogical()) .. " " .. tester:getChar(), "true ~")
