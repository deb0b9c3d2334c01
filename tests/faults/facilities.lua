local value = probe.Value(1.5)
value.metres = value.metres + 1
print(value.metres, value.length, value.loan, value:stretch(2))
value.length = value.length + 1
print(value.metres, pcall(function() return value.nothing end))
return value

local handle, other = probe.Handle(1), probe.Handle(2)
handle.other = other
print(handle.other == other, handle.other.metres)
handle.other = nil
delete(other)
print(other, handle.loan)
return handle

local native = probe.inner.most.makeNative()
native.metres = 3
print(native.metres, probe.inner.most.makeNative() == native)
return {native, probe.Handle(2)}

local derived = probe.inner.most.makeDerived()
print(class(derived), derived.metres, derived.length)
return {derived, probe.Shared(3)}

local point = probe.named.Point(2)
local twin = copy(point)
print(twin == point, probe.named.Point(point) == point, twin.x)
return {twin, point}

local keeper, point = probe.named.Keeper(), probe.named.Point(1)
keeper:keep(point)
keeper:keep(point)
keeper:take(probe.named.Point(3))
print(keeper:copied() == point, pcall(keeper.take, keeper, point))
delete(point)
return {keeper, keeper:copied()}

local keeper = probe.named.Keeper()
local shape = probe.named.Shape{area = function(self) return isvalid(self) and 2 or 3 end}
print(pcall(shape.width, shape))
keeper:adopt(shape)
print(keeper:area(), isvalid(shape))
return keeper

local keeper = probe.named.Keeper()
do
  local shape
  shape = probe.named.Shape{area = function() return isvalid(shape) and 4 or 5 end}
  keeper:share(shape)
end
collectgarbage()
print(keeper:area())
collectgarbage()
print(keeper:area())
return keeper

local shape
shape = probe.named.Shape{area = function() return shape and 1 end}
print(pcall(shape.width, shape))

local failure = select(2, pcall(probe.named.fail))
print(failure, failure.cause, failure.cause.place)
return failure.identifier

local most = probe.inner.most
local function twice(x) return most.sum({x, x}) end
print(most.keep(twice), most.kept()(3), most.keep(most.kept()), pcall(most.keep, function(x) error("failed " .. x, 0) end))
return {twice, most.kept(), most.keep(twice)}

print(probe.inner.most.sum({1, 2.5, 3}), pcall(probe.inner.most.sum, {"text"}))
return probe.inner.most.sum({1})

local text = {}
for i = 1, 30 do text[i] = "text that is not short: " .. i end
local strings = orbis_factory.P1.C1.tailor(array("string", {text}))
return {strings, {strings, {strings}}, array("int16", {{1, 2}, {3, 4}}), null, text[1]}

-- each: texts that are copied with their array
local text = "text that is not short"
return orbis_factory.P1.C1.tailor(array("string", {text, text}))

pcall(enumeration, "vehicle.Gear", {"First", "Second", "Neutral", "Reverse"})
local box = orbis_factory.NP1.N2.gearbox()
box.gear = "Second"
print(box.gear, #box.gears)
return orbis_factory.Weekday.Monday

for _, name in ipairs {"orbis_factory.Person", "probe.Shared", "orbis_factory.Weekday"} do help(name) end
print(withvm(function() return probe.Value(2).metres end))
return objects()[1] and #objects() > 0

recordlines()
local before = snapshot()
local kept = {probe.Value(2), array("int8", {1})}
print(tostring(snapshot() - before):match("bytes") ~= nil)
recordlines(false)
return kept

local book = orbis_factory.TreeNodeBase("Book")
book:add(orbis_factory.TreeNodeDerived("Preface", 3))
print(book:pages(), book.children.parent == book, #references(book))
return book

local node -- a chain longer than ends are nested
for i = 1, 110 do
  local outer = probe.Handle(i)
  outer.other, node = node, outer
end
print(node.metres)

-- each: a shortage while an error becomes text is an error of its own
local err = select(2, pcall(delete, 5))
local isText, reason = pcall(tostring, err)
reason = type(reason) == "table" and reason.identifier or reason
if not isText and reason ~= "not enough memory" and reason ~= "VELMARA:memory:exhausted" then wrong = reason or "none" end
print(wrong)
return err.identifier

local frame = probe.frame
local box, own = frame.Box(), frame.Part(3)
local part = box:part()
print(part.size, box:parts()[1] == part, frame.Box.make().size)
box:take(own)
box.shared = frame.Part(4)
print(isvalid(own), box.shared.size, box:parts()[2].size)
return {part, box.shared}

local frame = probe.frame
print(frame.pair({1.5, "text that is not short"}), frame.map({one = 1, two = 2}), frame.set({"b", "a"}))
print(frame.variant("text that is not short"), frame.variant(2), frame.time(1.5), frame.path("folder/file"), frame.wide("w"))
print(pcall(frame.map, {one = 1, two = "text"}))
return {frame.nested({{1}, {2, 3}}), frame.matrix(array("double", {{1, 2}, {3, 4}})), frame.complex(2)}

local frame = probe.frame
local first, second = frame.Part(1), frame.Part(2)
print(#frame.copies({first, second}), pcall(frame.owned, {first, second, first}), isvalid(first))
return frame.owned({first, second})

local handle = probe.Handle(1)
handle.other = probe.Handle(2)
print(handle)
show(handle, {handle, handle.other}, members(probe.named))
return handle

local raise = coroutine.wrap(function() error({through = "a coroutine"}) end)
each({raise, print}, function(f) print(pcall(xpcall, f, type)) end)
return (select(2, time(tostring, 7)))

local a = array("int8", {{1, 2, 3}, {4, 5, 6}})
local texts, cells = array("string", {"long enough for memory of its own", "b"}), array("cell", {a, "x"})
texts:set({1, 2}, texts({2, 1}))
cells[array {2}] = cells(1, {1})
print(a * 0.5 + {1, 2, 3}, a:gt(2) & ~a:eq(4), a(nil, {2, 1}), a:sum(2), a:order(2), a:gt(1):find(), a:transpose(), range(1, 6):reshape(2, nil))
print(pcall(function() return a * 100 end), texts:transpose(), cells)
return {a:sort(1), texts(nil)}

-- each: what memory is short for changes nothing
local texts = array("string", {"a", "b"})
local long = "long enough for memory of its own"
if not pcall(texts.set, texts, {1, 2}, long) and texts[1] ~= "a" then wrong = "torn" end
print(wrong)
return texts
