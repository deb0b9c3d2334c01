-- An error nobody catches: identifier, text, and where, also in a coroutine.
local function inner(adder)
  return adder:getSum(1)
end

function outer()
  inner(orbis_factory.Adder()) -- no tail call
end

local function generate()
  for i in coroutine.wrap(function() coroutine.yield(1) outer() end) do print("item", i) end
end

print(pcall(coroutine.wrap(function() error("as it was raised", 0) end)))
generate()
