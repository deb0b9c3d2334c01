// The native code as a module of ours.
#include "native.hpp"

#include "orbis/factory.hpp"

#include <utility>

namespace {

template <int... numbers>
void publishKinds(orbis::factory::Module& module, std::integer_sequence<int, numbers...>)
{
    (module.publish<race::Kind<numbers>>(("Kind" + std::to_string(numbers)).c_str()).template constructor<>(), ...);
    (module.function("choose", &race::choose<numbers>, "kind", ""), ...);
}

} // namespace

void publishModule(orbis::factory::Module& module)
{
    module.publish<race::Adder>("Adder")
        .constructor<>()
        .method("getSum", &race::Adder::getSum, "a, b")
        .property("total", &race::Adder::total);
    module.function("add", &race::add, "a, b", "");
    module.function("length", &race::length, "text", "");
    module.function("name", &race::name, "", "");
    module.function("self", &race::self, "adder", "");
    module.function("describe", static_cast<int (*)(double)>(&race::describe), "value", "");
    module.function("describe", static_cast<int (*)(std::string const&)>(&race::describe), "value", "");
    module.function("describe", static_cast<int (*)(race::Adder const*)>(&race::describe), "value", "");
    module.function("count", &race::count, "texts", "");
    module.function("names", &race::names, "", "");
    module.function("countNumbers", &race::countNumbers, "numbers", "");
    module.function("numbers", &race::numbers, "", "");
    module.function("fail", &race::fail, "", "");
    publishKinds(module, std::make_integer_sequence<int, race::kindCount>());
}
