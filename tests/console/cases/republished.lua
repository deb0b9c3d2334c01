-- What is kept of published names is forgotten when they change: in another machine, and when a module is loaded again.
local function attempt(f) return (select(2, pcall(f))) end
local function kinds()
  local object = cases.Changing()
  return type(object.member), type(attempt(function() object.member = 1 end)), attempt(function() return object + 1 end),
    type(attempt(function() return cases.changing end)), tostring(palette.Color),
    attempt(function() return palette.Color.Red end), type(attempt(function() return palette.Color.Deep end))
end
local function twice()
  print(kinds())
  print(kinds())
end

local package, Color = cases, palette
enumeration("palette.Color", {"Red"})
twice()
withvm(function()
  enumeration("palette.Color.Deep", {"Blue"})
  twice()
end)
twice()

local file
for _, module in ipairs(modules()) do
  if module.name == "console_cases" then file = module.file end
end
local Changing, changing, old = cases.Changing, cases.changing, cases.Changing()
unloadmodule("console_cases")
print(attempt(function() return package.changing end), attempt(Changing), attempt(changing), old)
loadmodule(file)
print(kinds())
unloadmodule("console_cases")
loadmodule(file)
twice()
print(old == Changing(), old, attempt(function() return old.member end))
