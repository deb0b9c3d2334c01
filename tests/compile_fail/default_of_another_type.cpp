// expect: A default value does not convert to the type of its parameter
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/withDefaults.hpp"

double power(double base, int exponent);

auto const described = orbis::factory::describeFunctions().function("power", &power, "base, exponent",
#ifdef CONTROL
                                                                    orbis::factory::withDefaults(2));
#else
                                                                    orbis::factory::withDefaults("two"));
#endif
