// expect: A parameter that is a reference to a non-const value cannot cross
#include "orbis/factory/describeFunctions.hpp"

#ifdef CONTROL
void fill(int const&) {}
#else
void fill(int&) {}
#endif

auto const described = orbis::factory::describeFunctions().function("fill", &fill);
