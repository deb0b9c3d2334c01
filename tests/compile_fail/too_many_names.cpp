// expect: More parameter names are listed than the function has parameters: remove the extra names.
#include "orbis/factory/describeFunctions.hpp"

int add(int a, int b)
{
    return a + b;
}

#ifdef CONTROL
auto const described = orbis::factory::describeFunctions().function("add", &add, "a, b");
#else
auto const described = orbis::factory::describeFunctions().function("add", &add, "a, b, c");
#endif
