-- One object is one value, as long as the script has it; no other object is ever taken for it.
local Probe, Weekday = cases.Probe, orbis_factory.Weekday
local function same(a, b) return rawequal(a, b) and a == b and ({[a] = true})[b] == true end

local p, q = Probe(), Probe()
p.value = q
local hours = {[Weekday.Monday] = 8}
local pair = array(Probe, {p, q})
for name, made in pairs {
  returned = function() return p:twin(), p end,
  property = function() return p.value, q end,
  element = function() return pair[2], q end,
  ["in a cell"] = function() return cases.echo({p, 1})[1], p end,
  ["of a coroutine"] = function() return coroutine.wrap(function() return p:twin() end)(), p end,
  reference = function() return orbis_factory.Adder, orbis_factory.Adder end,
  enumerator = function() return Weekday.Monday, Weekday.Monday end,
} do
  if not same(made()) then print(name, "differs") end
end
print(hours[Weekday.Monday], hours[Weekday.Tuesday], same(p, q), rawequal(Probe, Probe))

-- What is deleted stays itself.
local held = array(Probe, {q})
delete(q)
print("deleted", same(held[1], q), isvalid(held[1]))

-- Closed, it is closed for all who have it; the object crosses as a new value.
pair = array(Probe, {p})
do local given <close> = p:twin() end
print("closed", isvalid(p), isvalid(pair[1]), rawequal(pair[1], p), same(pair[1], pair[1]))
p = pair[1]

-- Nothing is kept alive, and an address used again is another object.
pair, held, hours, q = nil
local p2 = p:twin()
collectgarbage()
collectgarbage()
print(cases.alive(), same(p2, p))
local seen, wrong = {}, 0
for i = 1, 2000 do
  local made = Probe()
  made.value = i
  if made:twin().value ~= i or seen[made] then wrong = wrong + 1 end
  if i % 5 == 0 then seen[made] = i end
  if i % 7 == 0 then delete(made) end
  if i % 100 == 0 then
    for object, number in pairs(seen) do
      if isvalid(object) and object.value ~= number then wrong = wrong + 1 end
    end
    seen = {}
    collectgarbage()
  end
end
print(wrong)

-- A value that a finalizer saves is closed; its object gets a new one.
local saved
local keeper = Probe()
do
  local inner = Probe()
  inner.value = 7
  keeper.value = inner
  setmetatable({inner}, {__gc = function(self) saved = self[1] end})
end
collectgarbage()
collectgarbage()
print(saved, pcall(function() return saved.value end))
print(keeper.value.value, rawequal(keeper.value, saved), keeper.value == keeper.value)

-- Objects of a machine that ended, and of a module that was loaded again.
local old
for _ = 1, 20 do
  local own = withvm(function() local own = Probe(); return own end)
  if isvalid(own) or (old and same(old, own)) then print("taken for another") end
  old = own
end
local file
for _, module in ipairs(modules()) do
  if module.name == "console_cases" then file = module.file end
end
local before = Probe()
unloadmodule("console_cases")
loadmodule(file)
for _ = 1, 20 do
  local now = Probe()
  if same(now, before) or not same(now, now:twin()) or isvalid(before) then print("taken for another") end
end
