help(compass.Needle)

local needle = compass.Needle()
print("turn() gives " .. string.format("%.1f", needle:turn()))
print("turn(30) gives " .. string.format("%.1f", needle:turn(30)))
needle.heading = -45
print("heading is " .. string.format("%.1f", needle.heading))
print(pcall(needle.turn, needle, "north"))
