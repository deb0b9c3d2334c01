// expect: A static property has no object: give static data, or a free function
#include "orbis/factory/describe.hpp"

struct Published {
#ifdef CONTROL
    inline static int value = 0;
#else
    int value = 0;
#endif
};

template <>
struct orbis::factory::HostClass<Published> {
    static constexpr char const* name = "tests.Published";
};

auto const described = orbis::factory::describe<Published>().staticProperty("value", &Published::value);
