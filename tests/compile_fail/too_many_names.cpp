// expect: More parameter names are listed than the function has parameters: remove the extra names.
#include "orbis/factory/describeFunctions.hpp"

int add(int a, int b);

auto const described = orbis::factory::describeFunctions().function("add", &add, EITHER("a, b", "a, b, c"));
