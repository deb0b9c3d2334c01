-- What each Lua value becomes in the host, and what comes back.
local function text(value)
  if class(value) ~= "nil" then value = tolua(value) end
  if type(value) ~= "table" then
    return (math.type(value) or type(value)) .. " " .. tostring(value)
  end
  local parts = {}
  for i, element in ipairs(value) do parts[i] = text(element) end
  return "{" .. table.concat(parts, ", ") .. "}"
end

for _, value in ipairs {1, 1.5, -0.0, 1 << 53, (1 << 53) + 1, math.mininteger, 0 / 0 ~= 0 / 0, math.huge, "", "a\0b",
  "gr\u{fc}n \u{1f600}", {}, {1, 2.5, 3}, {1}, {(1 << 53) + 1, 2}, {true, false}, {{1, 2, 3}, {4, 5, 6}}, {{1}, {2}},
  {{true}, {false}}, {b = 2, a = "x", [""] = {c = 1, d = {}}}, {{1, 2}, {3}}, {"a", "bc"}, {1, "a", true, {2, {3}}, null}, {{}, {}}} do
  local back = cases.echo(value)
  print(class(value), type(back), text(back))
end
print(text(cases.echo({[4] = 4.5, [2] = 2.5, [1] = 1.5, [3] = 3})), text(cases.echo({1, 2, [4] = 4, [3] = 1 << 60})))
print(cases.echo(0 / 0) ~= cases.echo(0 / 0))
print(cases.echo("\xff\xc3(\xe2\x82") == "\u{fffd}\u{fffd}(\u{fffd}")
print(text(cases.echo(nil)), text(cases.echo(null)))
local p, q = cases.Probe(), cases.Probe()
local back = cases.echo({p, q})
print(class({p, q}), back[1] == p, back[2] == q, class({p, 1}), class({p, null}))
back = cases.echo({p, orbis_factory.Adder(3)})
print(class({p, orbis_factory.Adder()}), back[1] == p, back[2].total)

print(text(cases.small()), text(cases.grid()), text(cases.column()), text(cases.cells()))
local rows = tolua(cases.characters())
print(#rows, rows[1], rows[2] == "c\u{fffd}", cases.nobody())
local large = cases.large(0)
print(large, class(large), #large, large == cases.echo(large), large == p, large == cases.large(1), cases.echo({large, 1})[1] == large)
print(p:pair(q)[1] == p, p:pair(q)[2] == q, p:twin() == p, q:twin() == p)
local deep = tolua(cases.nests(200))
for _ = 1, 200 do deep = deep[1] end
print(deep, pcall(tolua, cases.nests(201)))
local many = {}
for i = 1, 100000 do many[i] = i end
print(#cases.echo(many), cases.echo(many)[100000])
