// expect: The setter takes another type than the getter gives: make the two types one.
#include "orbis/factory/describe.hpp"

struct Published {
    int value() const { return 0; }
#ifdef CONTROL
    void setValue(int const&) {}
#else
    void setValue(double) {}
#endif
};

template <>
struct orbis::factory::HostClass<Published> {
    static constexpr char const* name = "tests.Published";
};

auto const described = orbis::factory::describe<Published>().property("value", &Published::value, &Published::setValue);
