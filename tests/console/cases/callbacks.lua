-- Functions of the script that native code calls, and functions of native code.
local function show(label, ...) print(label, ...) end
local function shows(label, ok, error)
  print(label, ok, type(error) == "table" and (error.identifier or "?") or type(error), tostring(error))
end
local double = function(x) return 2 * x end

-- calls, overloads, identity
show("apply", callbacks.apply(double, 21), callbacks.apply(1, 2))
show("same", cases.echo(double) == double, cases.echo({double, "and more"})[1] == double)
local triple = callbacks.multiplier(3)
show("native", type(triple), triple(14), callbacks.apply(triple, 5), callbacks.apply(cases.echo(triple), 6))
shows("native takes", pcall(triple, "text"))
shows("native takes", pcall(triple, 1, 2))
shows("nil", pcall(callbacks.swallow, nil))
shows("text", pcall(callbacks.keep, "text"))
shows("number", pcall(cases.echo, coroutine.create(double)))
local held = asarray(cases.echo, double)
show("kind", tostring(held), held[1] == double, tolua(held) == double, held == asarray(cases.echo, double))
shows("element", pcall(function() held[1] = double end))

-- results
shows("no result", pcall(callbacks.apply, function() end, 1))
shows("a text", pcall(callbacks.apply, function() return "text" end, 1))
shows("a hole", pcall(callbacks.apply, function() return {1, nil, 3} end, 1))
show("several", callbacks.apply(function(...) return select("#", ...), "more" end, 1))

-- errors keep what they are
local thrown = setmetatable({}, {__tostring = function() return "a table of the script" end})
local function raise(value) return function() error(value) end end
shows("text", pcall(callbacks.apply, raise("boom"), 1))
local _, caught = pcall(callbacks.apply, raise(thrown), 1)
show("table", rawequal(caught, thrown))
_, caught = pcall(callbacks.apply, raise(nil), 1)
show("nil", caught)
shows("of the host", pcall(callbacks.apply, function() return orbis_factory.Adder():getSum(1) end, 1))
show("swallowed", callbacks.swallow(raise("boom")), callbacks.swallow(raise(thrown)))
collectgarbage()
_, caught = pcall(callbacks.apply, function() pcall(callbacks.swallow, raise("other")) error(thrown) end, 1)
show("again", rawequal(caught, thrown))

-- kept beyond the call
local count = 0
do
  local held = {}
  show("keep", callbacks.keep(function(x) count = count + 1 held[1] = x return count end))
end
collectgarbage()
show("kept", callbacks.kept(5), callbacks.kept(6), count)
local reference = setmetatable({}, {__mode = "v"})
do
  local function closure(x) return x + (reference[1] == nil and 0 or 1) end
  reference[1] = closure
  callbacks.keep(closure)
end
collectgarbage()
show("alive", reference[1] ~= nil, callbacks.kept(1), (callbacks.keptOnThread()))
show("drop", callbacks.drop())
collectgarbage()
show("released", reference[1] == nil)
do
  local closure = function() return count end
  reference[1] = closure
  callbacks.keep(closure)
end
show("drop on a thread", callbacks.dropOnThread())
collectgarbage()
show("not yet", reference[1] ~= nil)
callbacks.apply(double, 1)
collectgarbage()
show("later", reference[1] == nil)

-- re-entrance, to any depth
local function fall(n) return n == 0 and 0 or 1 + callbacks.apply(fall, n - 1) end
show("nested", fall(20))
local depth = 0
local function endless() depth = depth + 1 return callbacks.apply(endless, 1) end
local ok, overflow = pcall(endless)
show("endless", ok, tostring(overflow):match("C stack overflow"), depth > 20)

-- coroutines
local routine = coroutine.wrap(function()
  show("inside", callbacks.apply(function(x) return coroutine.isyieldable() and x or -x end, 3))
  shows("yield", pcall(callbacks.apply, coroutine.yield, 1))
  local inner = coroutine.wrap(function(x) while true do x = coroutine.yield(callbacks.apply(double, x)) end end)
  show("of its own", callbacks.apply(inner, 1), callbacks.apply(inner, 2))
  coroutine.yield()
  error("not reached")
end)
routine()

-- what native code uses stays meanwhile
local used, unused = cases.Probe(), cases.Probe()
used.value = 5
shows("in use", pcall(callbacks.with, used, function(x) delete({unused}) delete(x) end))
shows("in use", pcall(callbacks.with, used, function() unloadmodule("console_cases") end))
show("used", isvalid(used), isvalid(unused), callbacks.with(used, function() end))

-- another virtual machine
callbacks.keep(double)
withvm(function()
  shows("other machine", pcall(callbacks.apply, triple, 1))
  shows("other machine", pcall(callbacks.kept, 1))
  show("its own", callbacks.keep(function() return 7 end))
end)
show("its machine again", callbacks.apply(triple, 1))
local foreign = withvm(function() return callbacks.multiplier(2) end)
shows("ended", pcall(foreign, 1))
shows("ended", pcall(callbacks.kept, 1))
shows("ended", pcall(callbacks.apply, foreign, 1))

callbacks.keep(double) -- kept to the end
local function outer()
  return 1 + callbacks.apply(function(x)
    local function inner() error("uncaught " .. x) end
    inner()
  end, 1)
end
outer()
