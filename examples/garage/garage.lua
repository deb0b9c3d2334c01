local car = garage.Car()
local engine = car:engine()
engine.power = 90
print("one object", engine == car:engine(), car:copy():engine().power)

local radio = garage.Radio()
car:install(radio)
car:tune(7)
print("kept", radio.station, car:engineNow() == engine)
delete(radio)
car:tune(8)

local wheel = garage.Wheel(15)
car:mount(wheel)
print("taken", isvalid(wheel), car:wheel(1).diameter)

car.spare = garage.Wheel(16)
local spare = car.spare
delete(car)
print("the engine is gone, what is shared is not", isvalid(engine), spare.diameter)
print(pcall(function() return engine.power end))

delete(garage.showpiece())
print("still there", garage.showpiece():engine().power)
print("built", garage.build(120):engine().power)

local other = garage.Car()
other:mount(garage.Wheel(17))
print(pcall(other.mount, other, other:wheel(1)))
