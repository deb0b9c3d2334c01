// Publishes the classes.
#include "Engine.hpp"

#include "orbis/factory.hpp"

void publishModule(orbis::factory::Module& engines)
{
    engines.publish<Machine>("Machine").property("serial", &Machine::serial);
    engines.publish<Engine>("Engine")
        .inherits<Machine>()
        .constructor<double>("power")
        .method("kind", &Engine::kind)
        .property("power", &Engine::power);
    engines.function("serialOf", [](Machine const& machine) { return machine.serial; });
}
