// expect: This enumeration is not published: specialise orbis::factory::HostEnumeration for it, beside the enumeration.
#include "orbis/factory/describeFunctions.hpp"

enum class Color { Red, Green };

#ifdef CONTROL
template <>
struct orbis::factory::HostEnumeration<Color> {
    static constexpr char const* name = "tests.Color";
    static constexpr Enumerator<Color> enumerators[] = {{"Red", Color::Red}, {"Green", Color::Green}};
};
#endif

void paint(Color) {}

auto const described = orbis::factory::describeFunctions().function("paint", &paint);
