-- run: SCRIPT ignored
local x =
