// expect: A default value does not convert to the type of its parameter
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/withDefaults.hpp"

double power(double base, int exponent);

auto const described = orbis::factory::describeFunctions().function("power", &power, "base, exponent",
                                                                    orbis::factory::withDefaults(EITHER(2, "two")));
