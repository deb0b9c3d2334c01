// A module whose functions come in many sizes: for curves over the number of arguments and overloads, over the length
// of strings and the size of arrays.
#include "bench/CalledClasses.hpp"

#include <string>
#include <utility>
#include <vector>

namespace {

using called::Adder;
using called::Kind;
using called::publishKinds;

template <int>
using Number = double;

/// A function of as many numbers.
template <int... numbers>
void publishSum(orbis::factory::Module& curves, char const* name, std::integer_sequence<int, numbers...>)
{
    curves.function(name, [](Number<numbers>... values) { return (0.0 + ... + values); });
}

template <int... numbers>
void publishOverloads(orbis::factory::Module& curves, char const* name, std::integer_sequence<int, numbers...>)
{
    (curves.function(name, [](Kind<numbers> const*) { return numbers; }), ...);
}

template <int count>
using Count = std::make_integer_sequence<int, count>;

std::string const& textOf(int length)
{
    static thread_local std::string text;
    text.resize(static_cast<std::size_t>(length), 'a');
    return text;
}

std::vector<double> const& numbersOf(int count)
{
    static thread_local std::vector<double> numbers;
    numbers.resize(static_cast<std::size_t>(count), 1.5);
    return numbers;
}

} // namespace

void publishModule(orbis::factory::Module& curves)
{
    curves.publish<Adder>("Adder", "What is called")
        .constructor<>()
        .method("getSum", &Adder::getSum, "a, b", "The sum of both")
        .property("total", &Adder::total, "Of all sums");
    publishSum(curves, "sum0", Count<0>());
    publishSum(curves, "sum1", Count<1>());
    publishSum(curves, "sum2", Count<2>());
    publishSum(curves, "sum3", Count<3>());
    publishSum(curves, "sum4", Count<4>());
    publishSum(curves, "sum6", Count<6>());
    publishSum(curves, "sum8", Count<8>());
    publishSum(curves, "sum10", Count<10>());
    publishKinds(curves, Count<32>());
    publishOverloads(curves, "choose1", Count<1>());
    publishOverloads(curves, "choose2", Count<2>());
    publishOverloads(curves, "choose4", Count<4>());
    publishOverloads(curves, "choose8", Count<8>());
    publishOverloads(curves, "choose16", Count<16>());
    publishOverloads(curves, "choose32", Count<32>());
    curves.function("length", [](std::string const& text) { return static_cast<int>(text.size()); });
    curves.function("textOf", &textOf);
    curves.function("count", [](std::vector<double> const& numbers) { return static_cast<int>(numbers.size()); });
    curves.function("numbersOf", &numbersOf);
}
