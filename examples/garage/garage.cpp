#include "orbis/factory.hpp"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

struct Wheel {
    explicit Wheel(double given) : diameter(given) {}
    double diameter;
};

struct Engine {
    double power = 70;
};

struct Radio {
    int station = 1;
};

class Car {
public:
    Engine& engine() { return engine_; }
    void install(Radio* radio) { radio_ = radio; }
    void tune(int station)
    {
        if (radio_)
            radio_->station = station;
    }
    void mount(std::unique_ptr<Wheel> wheel) { wheels_.push_back(std::move(wheel)); }
    Wheel* wheel(int number) { return wheels_.at(static_cast<std::size_t>(number - 1)).get(); }
    void setSpare(std::shared_ptr<Wheel> spare) { spare_ = std::move(spare); }
    std::shared_ptr<Wheel> spare() const { return spare_; }
    Car copy() const
    {
        Car other;
        other.engine_ = engine_;
        return other;
    }

private:
    Engine engine_;
    std::vector<std::unique_ptr<Wheel>> wheels_;
    std::shared_ptr<Wheel> spare_;
    Radio* radio_ = nullptr;
};

Car& showpiece()
{
    static Car car;
    return car;
}

Car* build(double power)
{
    auto car = std::make_unique<Car>();
    car->engine().power = power;
    return car.release();
}

void publishModule(orbis::factory::Module& garage)
{
    using namespace orbis::factory;
    garage.publish<Wheel>("Wheel").constructor<double>("diameter").property("diameter", &Wheel::diameter, "In inches");
    garage.publish<Engine>("Engine").property("power", &Engine::power, "In kilowatts");
    garage.publish<Radio>("Radio").constructor().property("station", &Radio::station);
    garage.publish<Car>("Car")
        .constructor()
        .method("engine", &Car::engine)                  // inside the car
        .method("engineNow", copied(&Car::engine))       // a new object, as it says
        .method("mount", &Car::mount, "wheel")           // taken from the script
        .method("wheel", &Car::wheel, "number (from 1)") // inside the car
        .property("spare", &Car::spare, &Car::setSpare)  // shared
        .method("install", kept(&Car::install), "radio") // kept by the car, as it says
        .method("tune", &Car::tune, "station")
        .method("copy", &Car::copy); // a new object
    garage
        .function("showpiece", &showpiece)          // borrowed
        .function("build", owned(&build), "power"); // owned by the script, as it says
}
