// A module of what crosses between a script and native code in the rows of scripts/bench.
#include "bench/CalledClasses.hpp"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using called::Adder;
using called::Kind;
using called::publishKinds;

template <int... numbers>
void publishOverloads(orbis::factory::Module& crossings, char const* name, std::integer_sequence<int, numbers...>)
{
    (crossings.function(
         name, [](Kind<numbers> const*) { return numbers; }, "kind", ""),
     ...);
}

/// A class with a member for each of many names, and as many functions.
struct Wide {
    template <int number>
    double get() const
    {
        return number;
    }
};

/// Members keep the address of their name.
template <int number>
char const* numbered(char const* name)
{
    static std::string const texts[] = {"get" + std::to_string(number), "value" + std::to_string(number),
                                        "add" + std::to_string(number)};
    for (std::string const& text : texts)
        if (text.starts_with(name))
            return text.c_str();
    return nullptr;
}

template <int... numbers>
void publishNames(orbis::factory::Module& crossings, std::integer_sequence<int, numbers...>)
{
    auto& wide = crossings.publish<Wide>("Wide", "");
    wide.constructor<>();
    (wide.method(numbered<numbers>("get"), &Wide::get<numbers>), ...);
    (wide.property(numbered<numbers>("value"), &Wide::get<numbers>), ...);
    (crossings.function(
         numbered<numbers>("add"), [](double a, double b) { return a + b + numbers; }, "a, b", ""),
     ...);
}

double add(double a, double b)
{
    return a + b;
}

} // namespace

void publishModule(orbis::factory::Module& crossings)
{
    crossings.publish<Adder>("Adder", "What is called")
        .constructor<>()
        .method("getSum", &Adder::getSum, "a, b", "The sum of both")
        .property("total", &Adder::total, "Of all sums");
    crossings.function("add", &add, "a, b", "The sum of both");
    crossings.function(
        "length", [](std::string const& text) { return static_cast<int>(text.size()); }, "text", "");
    crossings.function(
        "name", [] { return std::string("twelve bytes"); }, "", "");
    crossings.function(
        "self", [](Adder* adder) { return adder; }, "adder", "");
    crossings.function(
        "count", [](std::vector<std::string> const& texts) { return static_cast<int>(texts.size()); }, "texts", "");
    crossings.function(
        "names", [] { return std::vector<std::string>(1000, "twelve bytes"); }, "", "");
    publishKinds(crossings, std::make_integer_sequence<int, 20>());
    publishOverloads(crossings, "choose2", std::make_integer_sequence<int, 2>());
    publishOverloads(crossings, "choose8", std::make_integer_sequence<int, 8>());
    publishOverloads(crossings, "choose", std::make_integer_sequence<int, 20>());
    publishNames(crossings, std::make_integer_sequence<int, 64>());
    crossings.function(
        "fail", [] { throw std::runtime_error("failed"); }, "", "");
}
