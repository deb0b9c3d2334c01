-- The samples of values and packages: what they refuse, what they survive, and what their help says.
local of = orbis_factory
local refused, eachRefused = loadfile("../refused.lua")(function(err) -- of the candidates' reasons, the last one's
  return tostring(err):gsub("VELMARA:native:exception: Native code failed: ", "native: "):match("[^\n]*$")
end)
--- All of them are refused with the text; in that, %s is the value.
local function allRefused(text, f, ...)
  for _, value in ipairs {...} do
    local ok, err = pcall(f, value)
    local message = tostring(ok or err)
    if message ~= text:format(value) then print(value, message) end
  end
end
local function assign(object, name, value) object[name] = value end
local nan, huge = 0 / 0, math.huge

-- packages of every form, an enumeration; help on classes
for _, topic in ipairs {of, of.P1, of.P1.P2, of.P3, of.NP1, of.NP1.NP2, of.Weekday} do
  local names = {}
  for name in pairs(topic) do names[#names + 1] = name end
  table.sort(names)
  print(topic, table.unpack(names))
end
for _, topic in ipairs {of.P1, of.MFVT, "orbis_factory.Prop.pin", "orbis_factory.Prop.absoluteZero"} do help(topic) end
refused(help, "orbis_factory.MFDT.seize")

-- values: the native value stays as it was when a change is refused
local week = of.Week(8)
for _, hours in ipairs {25, -1, nan, huge} do
  refused(week.setHours, week, "Monday", hours)
  refused(of.Week, hours)
end
eachRefused {{week.setHours, week, {"Monday", "Funday"}, 1}, {week.hoursOn, week, 8}, {week.longerOfEach, week, null}}
print(week.total, #of.Week().daysOff)
local function turned(quarters) return of.MFVT.turned(of.MFVT(1, 2), quarters) end
print(turned(-2147483648).east, turned(2147483647).east, turned(-1).east, turned(5).north)
eachRefused {{of.MFVT().move, of.MFVT(), null}, {of.MFVT().move, of.MFVT(), {of.MFVT(), of.MFVT()}}}
print(of.MFVT(huge, 0):halfwayTo(of.MFVT(-huge, 0)).east ~= nil)

-- methods as values, static ones, and sums that overflow
local adder, sum = of.Adder(10), of.Adder.getSum
print(sum(adder, 20, 22), sum == adder.getSum, adder:getSumOfTen(1, 2, 3, 4, 5, 6, 7, 8, 9, 10), adder.zero(), of.Adder.zero())
print(select("#", adder:reset()), adder.total, adder:getSum(2147483647, 1), adder == of.Adder(), adder ~= nil, adder == 1)

-- constructors and signatures
local native = "VELMARA:native:exception: Native code failed: "
allRefused(native .. '"%s" is no time: write hours:minutes.', of.Ctor, "", "1", "1:", "1:2:3", " 1:2", "a:b", "-1:00")
eachRefused {{of.Ctor, "99:00"}, {of.Ctor, 2147483647, 2147483647, 2147483647}, {of.Ctor, nan}}
print(of.Ctor("23:59").text, of.Ctor(24, 0).text, of.Ctor(0.5).text)
local shop = of.Signatures1("a\0b")
local ok, message = pcall(shop.total, shop, table.unpack(array("double", 1, 1, 21) and {1, 2, 3, 4, 5, 6, 7, 8, 9, 10,
  11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21}))
print(ok, select(2, tostring(message):gsub("\n", "")), tostring(message):match("[^\n]*$"):sub(-15))
print(shop:total(huge), shop:total(-huge), shop.takings ~= shop.takings, #shop.name)

-- accounts: bounds at both ends
eachRefused {{of.MFDT.open, 0}, {of.MFDT.open, 1001}, {of.MFDT}}
for _, made in ipairs {of.BasicTypes, of.VectorStringIO, of.P1.C1, of.P1.P2.C2, of.P3.C3, of.NP1.N2, of.NP1.NP2.N1,
  of.NP1.NP2.N3} do
  local ok, err = pcall(made)
  if ok or err.identifier ~= "VELMARA:class:access" then print(made, ok, err) end
end
local account = of.MFDT.open(1000)
account:pay(2147483647)
for _, cents in ipairs {-1, 2147483648, 0.5} do refused(account.pay, account, cents) end
refused(function() while true do account:pay(2147483647) end end)
while account.cents >= 2147483647 do account:withdraw(2147483647) end
account:withdraw(account.cents)
eachRefused {{account.withdraw, account, 1}, {of.MFDT.attributesOf, "rob"}}
delete(account)
refused(account.pay, account, 1)
print(of.MFDT.open(1000).cents, of.MFDT.open(1000):isEmpty())

-- properties
local prop = of.Prop()
for _, celsius in ipairs {4.9, 36, nan} do refused(assign, prop, "target", celsius) end
eachRefused {{assign, prop, "fahrenheit", 212}, {assign, prop, "serial", 1}, {assign, of.Prop, "absoluteZero", 0},
  {of.Prop.attributesOf, ""}}
print(prop.target, prop.serial, prop.lent)
local book = CppClass()
eachRefused {{book.sign, book, 5}, {book.sign, null, "x"}, {assign, book, "entry", "x"}}
print(book:sign(""), book.entry == "")

-- numbers and texts
local form = of.BasicTypes.form()
form:clear()
for _, wrong in ipairs {{"anInt8", 128}, {"anInt16", -32769}, {"anInt32", 1 << 31}, {"anInt64", 2.0 ^ 63}, {"aUint8", -1},
  {"aUint16", 65536}, {"aUint32", 1 << 32}, {"aUint64", -1}, {"aLogical", "x"}, {"aString", 5}, {"aUnicodeString", {1}},
  {"aChar", 5}, {"word", null}} do
  print(select(2, pcall(assign, form, wrong[1], wrong[2])).identifier)
end
form.aSingle, form.aChar, form.word = 0.1, "xyz", "a\0b"
print(form.aSingle, form.aChar, form.aString, #form.unicodeWord, of.BasicTypes.bytes("a\0b"), of.BasicTypes.units(""))
form.unicodeWord = ""
print(form == of.BasicTypes.form(), form.aUnicodeString == "")
print(withvm(function() return of.BasicTypes.form().aChar == "" end))

-- containers of texts
local guests = of.VectorStringIO.list()
for _, wrong in ipairs {"Ada", {1}, {"Ada", null}, array("double", 1, 2, 2)} do refused(assign, guests, "guests", wrong) end
guests.guests = {}
print(#guests.guests, #guests.names, of.VectorStringIO.sentence(array("cell", {})), of.VectorStringIO.sentence({"Ada"}))
print(of.VectorStringIO.sentence({}), of.VectorStringIO.sentence(null), pcall(of.BasicTypes.units, {}))
guests.guests = array("string", {"b", missing, "a\0"})
print(#guests.guests, #guests.names)

-- enumerations that the script must define first
help("orbis_factory.NP1.N2.gear")
refused(function() return of.NP1.N2.gearbox().gear end)
refused(assign, of.NP1.N2.gearbox(), "gear", "First")
enumeration("vehicle.Gear", {"First", "Third"})
refused(function() return of.NP1.N2.gearbox().gear end)
refused(assign, of.NP1.N2.gearbox(), "gear", "Third")
of.NP1.N2.gearbox().gear = 0
print(of.NP1.N2.gearbox().gear)

-- arrays: kept past their objects, and to the end of the virtual machine
local room = of.P1.C1.cloakroom()
print(of.P1.C1.label(null), of.P1.C1.label({}), of.P1.C1.label({room, room}), #of.P1.C1.tailor(null))
local adder = of.Adder(5)
room:hang({adder, adder}, {1, {2, "x"}})
adder = nil
collectgarbage()
print(room.left[2].total, room.right[2][2], isvalid(room.left[1]))
room:hang(array(of.Adder, {room.left[1]}), {adder})

-- numbers by the array, values that may be missing, dates
local gauge = of.P1.P2.C2.gauge()
for _, days in ipairs {{-1}, {1, nan}, {"a"}} do refused(gauge.setDays, gauge, days) end
gauge:setDays(array("int8", {{1, 3}, {2, 4}}))
for _, number in ipairs {0, 5, -2147483648, 1.5} do refused(gauge.pick, gauge, number) end
print(gauge.sums[4], #gauge:pick({}), gauge:wetterThan(nan)[1])
local kitchen = of.P3.C3.kitchen()
print(kitchen:brew("", huge, null), kitchen:brew("x\0y", -huge), kitchen.lastMinutes)
eachRefused {{kitchen.brew, kitchen}, {kitchen.brew, kitchen, "Assam", "long"},
  {assign, kitchen, "lastMinutes", "long"}}
local calendar = of.NP1.NP2.N1.calendar()
local function setToday(date) calendar.today = date end
allRefused(native .. '"%s" is no date: write one as 2024-02-29.', setToday, "2024-2-29", "2100-02-29", "0000-01-01",
  "10000-01-01", "2024-13-01", "+024-01-01", "")
eachRefused {{setToday, "2024-01-01\0"}, {setToday, 5}}
calendar.today = "0001-01-01"
eachRefused {{calendar.after, calendar, -1}, {calendar.after, calendar, 2147483647}}
print(calendar:after(3652058), calendar:daysUntil("9999-12-31"))

-- errors of native code leave the object as it was
local office = of.NP1.NP2.N3.office()
for _, kilograms in ipairs {0, -1, 20.1, nan} do refused(office.send, office, "Ada", kilograms) end
for _, shelf in ipairs {-1, 3, -2147483648} do refused(office.shelf, office, shelf) end
eachRefused {{office.stamp, office, -2147483648}, {office.drop, office}}
office:send("Ada", 20)
print(office.sent, office:shelf(2))
