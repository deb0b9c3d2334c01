local db = sqlite.Connection(":memory:")
local function run(sql, ...) sqlite.Statement(db, sql):run({...}) end
local function each(sql, take, ...) sqlite.Statement(db, sql):each(take, {...}) end
local function show(row) print(table.unpack(row, 1, #row)) end

run("create table city (name text primary key, people integer, area real, seal blob)")
local insert = sqlite.Statement(db, "insert into city values (?, ?, ?, ?)")
insert:run({"Oslo", 717710, 454.1, array("uint8", {1, 2, 254, 255})})
insert:run({"Ålesund", 58509, 633.6, null})
each("select name, people, area, typeof(people) from city where area > ? order by name", show, 1.5)
each("select seal, hex(seal) from city where seal = ?", show, array("uint8", {1, 2, 254, 255}))

db:define("density", 2, function(values) return values[1] / values[2] end)
each("select name, round(density(people, area)) from city order by 2", show)

print(pcall(insert.run, insert, {"Oslo"}))
print(pcall(sqlite.Statement, db, "selct"))
print(pcall(sqlite.Statement, db, "-- nothing"))
print(select(2, pcall(sqlite.Statement, nil, "select 1")).identifier)
db:define("fail", 1, function(values) error({reason = values[1]}) end)
print(select(2, pcall(run, "select fail(?)", "mine")).reason)
each("select name from city limit 1", function() print(select(2, pcall(insert.run, insert, {true})).identifier) end)
print(pcall(each, "select 1", function() error("stop", 0) end))

local again
again = sqlite.Statement(db, "select 1")
again:each(function() print(pcall(again.run, again)) end)
run("update city set people = people + 1")
each("select changes()", show)
delete(db)
insert:run({"Bergen"})
print(isvalid(db), "what shares the connection keeps it open")
