// expect: A parameter that is a reference to a non-const value cannot cross
#include "orbis/factory/describeFunctions.hpp"

void fill(EITHER(int const&, int&));

auto const described = orbis::factory::describeFunctions().function("fill", &fill);
