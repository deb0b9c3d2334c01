-- A call of one size, COUNT times: `velmara --module FILE curves.lua arguments|first|last SIZE COUNT`.
local what, size, count = arg[1], tonumber(arg[2]), tonumber(arg[3])

if what == "arguments" then
  local sum, numbers = curves["sum" .. size], {}
  for i = 1, size do numbers[i] = i + 0.5 end
  -- A call with its arguments written out, as people do.
  local text = "local sum, count = ... for _ = 1, count do sum(%s) end"
  load(text:format(table.concat(numbers, ", ")))(sum, count)
else -- the first or the last of so many overloads
  local choose, kind = curves["choose" .. size], curves["Kind" .. (what == "last" and size - 1 or 0)]()
  for _ = 1, count do choose(kind) end
end
os.exit(0, false) -- excludes the end, whose cost depends on the count
