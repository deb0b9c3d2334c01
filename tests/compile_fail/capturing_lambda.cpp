// expect: A package function is a free function, a static member function or a lambda that captures nothing
#include "orbis/factory/describeFunctions.hpp"

void describeIt()
{
    [[maybe_unused]] int offset = 1;
    orbis::factory::describeFunctions().function("shift", [EITHER(, offset)](int a) { return a + EITHER(1, offset); });
}
