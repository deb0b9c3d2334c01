-- What has grown is told by class and by the line that made it; what only waits for the collector has not.
local function linesOf(growth)
  local lines = {}
  for i, row in ipairs(growth) do
    lines[i] = table.concat({row.class, row.line, row.objects, row.bindings, row.arrays, row.bytes}, " ")
  end
  return table.concat(lines, "\n")
end
local function make(value)
  local probe = cases.Probe()
  probe.value = value
  return probe
end

recordlines(false)
local before = snapshot()
local unknown, list = make(5), array("int32", {1})
print(snapshot() - before)
recordlines()
before = snapshot()
for i = 1, 100000 do
  local probe = make(i)
  if i == 70000 then probe.value = probe end -- holds itself
end
print(snapshot() - before)
print(before - snapshot())
print(snapshot() - snapshot(), #(snapshot() - before))

-- shared elements count once; a long text counts; in a coroutine it is the line that runs there
before = snapshot()
local a = array("double", {1, 2, 3, 4, 5, 6, 7, 8})
local b = cases.echo({a, a, ("x"):rep(30)})
local c = coroutine.wrap(function()
  return cases.Probe()
end)()
print(linesOf(snapshot() - before))
withvm(function() local own <close> = cases.Probe() print(linesOf(snapshot()):match("cases.Probe [^\n]*")) end)

-- what a script makes of a snapshot is its own
before = snapshot()
recordlines(nil)
local d = make(1)
print((snapshot() - before)[1].line == "", pcall(function() return snapshot() - {} end))
before[1], before[2].objects, before[3] = 5, "many", {class = {}, bytes = 1.5}
print(tostring(before):match("[^\n]*"), #(snapshot() - before) > 0, pcall(getmetatable(before).__tostring, 1))
a, b, c, d = nil, nil, nil, nil
