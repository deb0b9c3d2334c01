-- The tour's sections about values: how numbers, texts, arrays and enumerators are converted, and how members are
-- published. section(title) begins a section; show(text, value, expected) prints a value and checks it; refused(text,
-- f, ...) prints the error that a call throws.
local section, show, refused = ...
local of = orbis_factory
local function list(values) -- of texts, numbers, enumerators
  local texts = {}
  for i, value in ipairs(values) do texts[i] = tostring(value) end
  return table.concat(texts, " ")
end
local function set(object, property, value) object[property] = value end
local function get(object, property) return object[property] end

section("A class with methods and a property: numbers in, numbers out")
local adder = of.Adder(10)
show("getSum(1, 2)", adder:getSum(1, 2), 3)
show("twenty inputs", adder:getSumOfTwenty(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20), 210)
show("the total of all, and of the start", adder.total, 223)
refused("a fraction", adder.getSum, adder, 1, 2.5)
local _, message = pcall(adder.getSumOfTwenty, adder, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, "12", 13, 14, 15, 16, 17, 18, 19, 20)
show("the twelfth, by the name of the last ten", message.text:match("rest: needs.*"), "rest: needs a number, not char")

section("Constructors: none, some, defaults, texts")
show("Ctor()", of.Ctor().text, "0:00:00")
show("Ctor(90.5)", of.Ctor(90.5).seconds, 90.5)
show("Ctor(1, 30), seconds left out", of.Ctor(1, 30).text, "1:30:00")
show("Ctor(1, 30, 15)", of.Ctor(1, 30, 15).text, "1:30:15")
show("Ctor('12:05')", of.Ctor("12:05").text, "12:05:00")
refused("the private one", of.Ctor, of.Ctor())

section("Signatures: one name, 0 to 20 inputs")
local shop, prices = of.Signatures1("Corner"), {}
for count = 0, 20 do
  if count % 5 < 2 then show("total of " .. count, shop:total(table.unpack(prices)), count * (count + 1) / 2) end
  prices[count + 1] = count + 1
end
show("takings", shop.takings, 1 + 15 + 21 + 55 + 66 + 120 + 136 + 210)

section("A value class: objects are passed as copies; methods of every form")
local place = of.MFVT(3, 4)
show("const member: distanceTo", place:distanceTo(of.MFVT()), 5)
place:move(1, 1)
place:move(place)
show("members, overloaded: move", place.east .. " " .. place.north, "8.0 10.0")
show("function that takes the object: halfwayTo", place:halfwayTo(of.MFVT()).east, 4)
show("lambda that takes the object: isNorthOf", place:isNorthOf(of.MFVT.pole()), false)
show("static function: turned", of.MFVT.turned(place, 1).north, -8)
show("static lambda: pole", of.MFVT.pole().north, 1e7)
show("and the place itself is where it was", place.north, 10)

section("Attributes of methods: an account, which its bank owns")
local account = of.MFDT.open(7)
account:pay(250)
account = nil
collectgarbage()
account = of.MFDT.open(7)
show("forgotten by the script, kept by the bank", account:statement(), "account 7: 250 cents")
show("the same account, the same object", of.MFDT.open(7) == account, true)
for _, known in ipairs {"open: Static", "pay: Sealed", "withdraw: OverridesAll", "isEmpty: ForceMembership",
  "statement: Unlocked Indestructable", "audit: Hidden", "interest: Abstract", "seize: Private", "lend: Protected",
  "forge: NoAccess"} do
  local method, attributes = known:match("(.*): (.*)")
  show(method, of.MFDT.attributesOf(method), attributes)
end
show("hidden, but can be called: audit", account:audit() == account:statement(), true)
for _, method in ipairs {"interest", "seize", "lend", "forge"} do refused(method, get(account, method), account) end
account:withdraw(250)

section("Properties of every form: a thermostat")
local prop = of.Prop()
prop.target = 21
show("through member functions", prop.target, 21)
prop.isOn = true
show("through a data member", prop.isOn, true)
prop.fahrenheit = 68
show("through functions that take the object", prop.target .. " " .. prop.fahrenheit, "20.0 68.0")
prop.isOff = true
show("through lambdas", prop.isOn, false)
prop.pin = 1234
show("write only: unlock(1234)", prop:unlock(1234), true)
show("release routine: readings still lent", prop.reading and prop.lent, 0)
of.Prop.outside = 12
show("static, written and read", of.Prop.outside, 12)
show("a constant", of.Prop.absoluteZero, -273.15)
for _, known in ipairs {"target: AbortSet DefaultAllowed", "actual: Transient", "room: InitAllowed CopyAllowed",
  "isOn: ResetAllowed InspectAllowed", "serial: Sealed NoAccessSetter", "fahrenheit: Dependent",
  "isOff: ListenerGetAllowed ListenerSetAllowed", "reading: ForceMembership", "lent: Hidden", "pin: NoAccessGetter",
  "maker: Grandfathered PrivateSetter", "fuse: Destructible ProtectedSetter", "diary: PrivateGetter",
  "wiring: CanContainInterfaces ProtectedGetter", "humidity: Abstract", "outside: Static"} do
  local property, attributes = known:match("(.*): (.*)")
  show(property, of.Prop.attributesOf(property), attributes)
end
for _, name in ipairs {"serial", "actual", "maker", "fuse", "target"} do refused(name .. " = 1", set, prop, name, 1) end
for _, name in ipairs {"pin", "diary", "wiring", "humidity"} do refused(name, get, prop, name) end

section("Descriptors made by hand: a class without a package")
local book = CppClass()
show("sign('Ada') gives the entry before", book:sign("Ada"), "(empty)")
show("entry", book.entry, "Ada")

section("Numbers and texts of every type: a form")
local form = of.BasicTypes.form()
form:clear()
for name, value in pairs {aDouble = 0.1, aSingle = 0.5, anInt8 = -128, anInt16 = -32768, anInt32 = -2147483648,
  anInt64 = math.mininteger, aUint8 = 255, aUint16 = 65535, aUint32 = 4294967295, aUint64 = math.maxinteger,
  aLogical = true, aChar = "x", aString = "naïve", aUnicodeString = "日本 𝄞"} do form[name] = value end
show("double, single", list {form.aDouble, form.aSingle}, "0.1 0.5")
show("int8 to int64", list {form.anInt8, form.anInt16, form.anInt32, form.anInt64},
  "-128 -32768 -2147483648 -9223372036854775808")
show("uint8 to uint64", list {form.aUint8, form.aUint16, form.aUint32, form.aUint64},
  "255 65535 4294967295 9223372036854775807")
show("bool, char", list {form.aLogical, form.aChar}, "true x")
show("std::string, fl::ustring", list {form.aString, form.aUnicodeString}, "naïve 日本 𝄞")
form.word, form.unicodeWord = "plain", "größer"
show("char const*, char16_t const*", list {form.word, form.unicodeWord}, "plain größer")
show("string views: bytes, UTF-16 units", list {of.BasicTypes.bytes("𝄞"), of.BasicTypes.units("𝄞")}, "4 2")
refused("aUint8 = 256", set, form, "aUint8", 256)

section("Containers of texts: a guest list")
local guests = of.VectorStringIO.list()
guests.guests = {"Cleo", "Ada"}
guests:invite({"Bob"})
show("a vector: in its order", list(guests.guests), "Cleo Ada Bob")
show("a set: in alphabetical order", list(guests.names), "Ada Bob Cleo")
show("a vector of std::string", of.VectorStringIO.sentence(guests.names), "Ada, Bob and Cleo")
refused("one name twice", guests.invite, guests, {"Eve", "Eve"})

section("Enumerations: published by native code, and defined by the script")
local week = of.Week(8)
week:setHours({"Friday", of.Weekday.Saturday}, 4)
show("given by name or as objects: total", week.total, 40)
show("one back", week.busiestDay, of.Weekday.Monday)
show("a list of them back, of one", week.daysOff[1], "Sunday")
show("and as numbers", week:hoursOn(6), 4)
show("a value in, a value out", week:longerOfEach(of.Week(6)):hoursOn("Friday"), 6)
refused("unknown", week.hoursOn, week, "Caturday")
pcall(enumeration, "vehicle.Gear", {"First", "Second", "Neutral", "Reverse"}) -- unless it is defined already
local box = of.NP1.N2.gearbox()
box.gear = "Second"
show("the script's class, native values by name", list {box.gear, #box.gears}, "Second 4")

section("Arrays of the host as they are: a cloakroom")
local room = of.P1.C1.cloakroom()
local coat = array("int16", {{1, 2, 3}, {4, 5, 6}})
room:hang(coat, coat)
show("counted proxy: kept as it is", asarray(room, "left") == coat, true)
show("two arrays, though equal", room.isOneArray, false)
room:mirrorLeft()
show("one array on both hooks", room.isOneArray, true)
show("const proxy: looks at it", of.P1.C1.label(coat) .. "; " .. of.P1.C1.label(room), "2-by-3; 1-by-1, an object")
show("plain proxy: a copy of its own", asarray(of.P1.C1.tailor, coat) == coat, true)
room:hang(null, null)

section("Arrays of numbers: a rain gauge")
local gauge = of.P1.P2.C2.gauge()
gauge:setDays({0, 2.5, 1})
show("a span in, a vector out", list(gauge.sums), "0.0 2.5 3.5")
show("a vector of bool", list(gauge:wetterThan(1)), "false true false")
show("int32 in, single out", list(gauge:pick({3, 2})), "1.0 2.5")
refused("refused by native code", gauge.pick, gauge, {4})

section("Values that may be missing, and inputs that may be left out: tea")
local kitchen = of.P3.C3.kitchen()
kitchen.lastMinutes = nil
show("nothing brewed yet", kitchen.lastMinutes, nil)
show("two defaults", kitchen:brew("Assam"), "Assam tea, 3 minutes")
show("an optional text", kitchen:brew("Darjeeling", 2.5, "milk"), "Darjeeling tea, 2.5 minutes, with milk")
show("an optional number", kitchen.lastMinutes, 2.5)

section("A native type of its own, which crosses as text; what native code throws")
local calendar, office = of.NP1.NP2.N1.calendar(), of.NP1.NP2.N3.office()
calendar.today = "2024-02-28"
show("after(1)", calendar:after(1), "2024-02-29")
show("daysUntil('2024-03-01')", calendar:daysUntil("2024-03-01"), 2)
refused("no date", set, calendar, "today", "2023-02-29")
refused("a sentence", office.send, office, "Ada", 21)
refused("of the standard library", office.shelf, office, 3)
refused("with an identity", office.stamp, office, 2)
refused("no exception at all", office.drop, office)
