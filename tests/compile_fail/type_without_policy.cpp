// expect: There is no marshaling policy for this native type: include the header of its policy, or specialise
#include "orbis/factory/describe.hpp"

struct Published {
#ifdef CONTROL
    void take(double) {}
#else
    void take(long double) {}
#endif
};

template <>
struct orbis::factory::HostClass<Published> {
    static constexpr char const* name = "tests.Published";
};

auto const described =
    orbis::factory::describe<Published>().method("take", &Published::take).method("again", &Published::take);
