// expect: A default value for an integer parameter is a floating-point number: write an integer.
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/withDefaults.hpp"

double power(double base, int exponent);

auto const described = orbis::factory::describeFunctions().function("power", &power, "base, exponent",
                                                                    orbis::factory::withDefaults(EITHER(2, 2.5)));
