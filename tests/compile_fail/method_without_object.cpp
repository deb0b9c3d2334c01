// expect: A free function published as a method takes a pointer to the class first
#include "orbis/factory/describe.hpp"

struct Published {};

template <>
struct orbis::factory::HostClass<Published> {
    static constexpr char const* name = "tests.Published";
};

#ifdef CONTROL
int size(Published const*)
#else
int size(int)
#endif
{
    return 0;
}

auto const described = orbis::factory::describe<Published>().method("size", &size);
