// expect: The class that this pointer points to is not published: specialise orbis::factory::HostClass for it
#include "orbis/factory/describeFunctions.hpp"

struct Unknown {};

#ifdef CONTROL
template <>
struct orbis::factory::HostClass<Unknown> {
    static constexpr char const* name = "tests.Unknown";
};
#endif

void use(Unknown*) {}

auto const described = orbis::factory::describeFunctions().function("use", &use);
