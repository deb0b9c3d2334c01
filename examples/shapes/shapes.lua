function square(side)
    return shapes.Shape{
        area = function() return side * side end,
        scale = function(self, factor) side = side * factor end,
        name = function(self) return "a square" end,
    }
end

local drawing = shapes.Drawing()
drawing:add(square(3))
drawing:add(shapes.Shape{area = function() return 5 end, scale = function() end})
drawing:scale(2)
print(drawing:describe())

local wrong = shapes.Shape{area = function() error("too large", 0) end}
print(pcall(wrong.area, wrong))
print(pcall(wrong.scale, wrong, 2))
print(pcall(shapes.Shape, {area = 5}))
