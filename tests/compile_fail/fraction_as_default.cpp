// expect: A default value for an integer parameter is a floating-point number: write an integer.
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/withDefaults.hpp"

double power(double base, int exponent);

auto const described = orbis::factory::describeFunctions().function("power", &power, "base, exponent",
#ifdef CONTROL
                                                                    orbis::factory::withDefaults(1, 2));
#else
                                                                    orbis::factory::withDefaults(2.5));
#endif
