// expect: A release routine is a member function without parameters, or a free function
#include "orbis/factory/describe.hpp"

struct Published {
    int lock() { return 0; }
#ifdef CONTROL
    void unlock() {}
#else
    void unlock(int) {}
#endif
};

template <>
struct orbis::factory::HostClass<Published> {
    static constexpr char const* name = "tests.Published";
};

auto const described = orbis::factory::describe<Published>().property(
    "value", orbis::factory::releasedBy<&Published::unlock>(&Published::lock));
