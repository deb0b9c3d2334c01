-- The tour: shows every facility of the library with the sample classes, and checks its own output.
local folder = arg[0]:match("^.*[/\\]") or ""
local wrong = 0

local function section(title)
  print()
  print(title)
end

--- Prints a value and checks it. Long ones are printed on a line of their own.
local function show(text, value, expected)
  local isRight = tostring(value) == tostring(expected) or value == expected
  local given = tostring(value) .. (isRight and "" or "  WRONG, expected " .. tostring(expected))
  print(#given > 35 and "  " .. text .. "\n      " .. given or ("  %-42s "):format(text) .. given)
  if not isRight then wrong = wrong + 1 end
end

--- Prints the error that a call throws, in lines of at most 80 columns.
local function refused(text, f, ...)
  local succeeded, message = pcall(f, ...)
  if succeeded then return show(text, "no error", "an error") end
  print("  " .. text)
  for line in tostring(message):gmatch("[^\n]+") do
    local indent = "    " .. line:match("^ *")
    local printed = indent
    for word in line:gmatch("%S+") do
      if #printed + #word > 78 then
        print(printed)
        printed = indent .. "  "
      end
      printed = printed .. (printed:match("%S$") and " " or "") .. word
    end
    print(printed)
  end
end

local function visit(name)
  assert(loadfile(folder .. "tour/" .. name .. ".lua"))(section, show, refused)
end

print("The classes of the package orbis_factory, one for each facility of the library")
visit("values")
visit("objects")
visit("packages")

--- Returns the live objects that the predicate selects.
local function living(isMeant)
  local list = objects()
  for i = #list, 1, -1 do
    if not isMeant(list[i]) then table.remove(list, i) end
  end
  return list
end
local function isOurs(object) return object.class:match("^orbis_factory%.") end
local function isNative(object) return object.native end -- all but enumerators, which stay

section("The end: live objects, bindings, and nothing left")
collectgarbage()
show("live objects, once no script has them", #living(isNative), 0)
do
  local left <close> = orbis_factory.Container("suitcase")
  local saw <close> = left:add("souvenir", 0.2)
  local place <close> = orbis_factory.MFVT(1, 2)
  local tale <close> = orbis_factory.SharedBase("Tale")
  print(living(isNative))
end
show("given back at the end of the block", #living(isNative), 0)
print("  the registry of bindings:")
orbis_factory.dumpReg()
unloadmodule("orbis_factory")
show("unloaded: the package", orbis_factory, nil)
show("left of the objects of its classes", #living(isOurs), 0)
show("mistakes on this tour", wrong, 0)
assert(wrong == 0)
