// Uses the classes of another module, which may be loaded after this one, and publishes a subclass of one.
#include "Engine.hpp"

#include "orbis/factory.hpp"

namespace {

struct Turbo final : Engine {
    char const* kind() const override { return "turbo"; }
};

Engine common(1);

} // namespace

void publishModule(orbis::factory::Module& cars)
{
    cars.publish<Turbo>("Turbo").inherits<Engine>().constructor();
    cars.function("tune", [](Engine& engine) { engine.power *= 2; })
        .function("kindOf", [](Engine const* engine) { return engine ? engine->kind() : "none"; })
        .function("common", [] { return &common; })
        .function("make",
                  [](bool isTurbo) -> std::unique_ptr<Engine> {
                      return isTurbo ? std::make_unique<Turbo>() : std::make_unique<Engine>(3);
                  })
        .function("scrap", [](std::unique_ptr<Engine> engine) { return engine->power; })
        .function("all", [] { return std::vector<Engine*>{&common}; });
}
