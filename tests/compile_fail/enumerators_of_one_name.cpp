// expect: Each enumerator has a name of its own: give every entry of HostEnumeration<E>::enumerators another one
#include "orbis/factory/classes/EnumerationClassInfo.hpp"

enum class Color { Red, Green };

template <>
struct orbis::factory::HostEnumeration<Color> {
    static constexpr char const* name = "tests.Color";
    static constexpr Enumerator<Color> enumerators[] = {{"Red", Color::Red}, {EITHER("Green", "Red"), Color::Green}};
};

orbis::factory::EnumerationClassInfo<Color> const info("");
