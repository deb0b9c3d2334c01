// expect: A package function is a free function, a static member function or a lambda that captures nothing
#include "orbis/factory/describeFunctions.hpp"

void describeIt()
{
    [[maybe_unused]] int offset = 1;
#ifdef CONTROL
    orbis::factory::describeFunctions().function("shift", [](int a) { return a + 1; });
#else
    orbis::factory::describeFunctions().function("shift", [offset](int a) { return a + offset; });
#endif
}
