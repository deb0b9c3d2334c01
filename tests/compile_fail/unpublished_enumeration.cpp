// expect: This enumeration is not published: specialise orbis::factory::HostEnumeration for it, beside the enumeration.
#include "orbis/factory/describeFunctions.hpp"

enum class Color { Red, Green };

void paint(EITHER(int, Color));

auto const described = orbis::factory::describeFunctions().function("paint", &paint);
