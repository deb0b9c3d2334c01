-- Whatever a script does wrong ends in an error that it can catch.
local a = orbis_factory.Adder()
local function down() return 1 + down() end
print(pcall(down))
local function indexDown() return setmetatable({}, {__index = function(t, k) return t[k .. "x"] end}).x end
print((pcall(indexDown)))
local function machinesDown(n) return n == 0 and a.total or withvm(machinesDown, n - 1) end
print(select(2, pcall(machinesDown, 3)).identifier)
print((pcall(string.rep, "x", math.maxinteger)))

-- errors of any type pass through host calls' callers unchanged
for _, value in ipairs({1, true, "text", {}, a, print}) do
  local ok, err = pcall(error, value)
  print(ok, err == value)
end
print(select(2, pcall(error)), select(2, xpcall(error, function(e) error(e) end, "again")) ~= nil)
local ok, err = pcall(a.getSum, a)
print(ok, type(err), err.identifier, err.where)
ok, err = pcall(function() a:getSum() end)
print(err.where, tostring(err):sub(1, #err.identifier + 2) == err.identifier .. ": ")
print(select(2, pcall(error, err)) == err)

-- coroutines and finalizers use the host like any other code
local wrapped = coroutine.wrap(function(x)
  while true do x = coroutine.yield(a:getSum(x, 1)) end
end)
print(wrapped(1), wrapped(41))
print(coroutine.resume(coroutine.create(function() return a.nothing end)))
local timed = coroutine.wrap(function() each({"x", "y"}, coroutine.yield) return time(coroutine.yield, "inside") end)
print(timed(), select(2, timed()), timed(), select("#", timed(1, 2)))
print(pcall(each, array("int8", {5, 6}), function(x, i) if i == 2 then error(x, 0) end end))
print(pcall(each, 5, print), pcall(time))
local count = 0
for _ = 1, 100 do
  setmetatable({}, {__gc = function() count = count + orbis_factory.Adder(1).total error("lost") end})
end
collectgarbage()
collectgarbage()
print(count)
setmetatable({}, {__gc = function() print("at the end", a.total, pcall(orbis_factory.Adder)) os.exit(9) end})

-- what could break the process is not there
print(load(string.dump(down)))
print(loadfile("robustness.lua") ~= nil, debug.setmetatable, debug.getregistry, package.loadlib, #package.searchers)
print(getmetatable(a), pcall(setmetatable, orbis_factory, {}))
print(getmetatable(orbis_factory), next(orbis_factory), rawlen(orbis_factory))
print(select(2, pcall(require, "no.such.module")):match("^[^\n]*"))
