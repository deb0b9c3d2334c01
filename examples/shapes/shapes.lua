function square(side)
    return shapes.Shape{
        area = function() return side * side end,
        scale = function(self, factor) side = side * factor end,
        name = function(self) return "a square" end,
    }
end

drawing = shapes.Drawing()
drawing:add(square(3))
drawing:add(shapes.Shape{area = function() return 5 end, scale = function() end})
drawing:scale(2)
print(drawing:describe())

wrong = shapes.Shape{area = function() error("too large", 0) end}
print(pcall(wrong.area, wrong))
print(pcall(wrong.scale, wrong, 2))
print(pcall(shapes.Shape, {area = 5}))

do -- a function may refer to its own object
    local frame
    frame = shapes.Shape{name = function() return isvalid(frame) and "a living frame" or "a lost frame" end}
    drawing:setFrame(frame)
end
collectgarbage()
collectgarbage()
print(drawing:describe())
drawing, wrong = nil
collectgarbage()
collectgarbage()
print(#objects())
