-- An error nobody catches: identifier, text, and where.
local function inner(adder)
  return adder:getSum(1)
end

function outer()
  inner(orbis_factory.Adder()) -- no tail call
end

print("before")
outer()
