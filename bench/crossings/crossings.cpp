// A module of what crosses between a script and native code in the rows of scripts/bench.
#include "orbis/factory.hpp"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

struct Adder {
    double getSum(double a, double b)
    {
        total += a + b;
        return a + b;
    }
    double total = 0;
};

/// A class for each of many overloads.
template <int number>
struct Kind {};

template <int... numbers>
void publishOverloads(orbis::factory::Module& crossings, std::integer_sequence<int, numbers...>)
{
    (crossings.publish<Kind<numbers>>(("Kind" + std::to_string(numbers)).c_str()).template constructor<>(), ...);
    (crossings.function(
         "choose", [](Kind<numbers> const*) { return numbers; }, "kind", ""),
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
    publishOverloads(crossings, std::make_integer_sequence<int, 20>());
    crossings.function(
        "fail", [] { throw std::runtime_error("failed"); }, "", "");
}
