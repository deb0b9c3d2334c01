#pragma once

#include "orbis/factory.hpp"

#include <string>
#include <utility>

namespace called {

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

/// Publishes them as Kind0, Kind1, ...
template <int... numbers>
void publishKinds(orbis::factory::Module& module, std::integer_sequence<int, numbers...>)
{
    (module.publish<Kind<numbers>>(("Kind" + std::to_string(numbers)).c_str()).template constructor<>(), ...);
}

} // namespace called
