-- run: - first
-- input: standard_input.lua
print("read", arg[0], ...)
