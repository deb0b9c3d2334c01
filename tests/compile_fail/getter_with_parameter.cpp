// expect: A getter is a data member, a member function without parameters, static data, or a free
#include "orbis/factory/describe.hpp"

struct Published {
#ifdef CONTROL
    int value() const { return 0; }
#else
    int value(int) const { return 0; }
#endif
};

template <>
struct orbis::factory::HostClass<Published> {
    static constexpr char const* name = "tests.Published";
};

auto const described = orbis::factory::describe<Published>().property("value", &Published::value);
