-- Given what is printed of an error: a function that prints with which one a call is refused, and one for several calls.
local textOf = ...
local function refused(f, ...)
  local ok, err = pcall(f, ...)
  print(ok and "not refused" or textOf(err))
end
return refused, function(calls) for _, call in ipairs(calls) do refused(table.unpack(call)) end end
