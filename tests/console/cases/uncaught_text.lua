-- An error of Lua's own is reported in the same form.
local function f()
  local x = nil
  return x.y .. "" -- fails
end
local ok = f()
