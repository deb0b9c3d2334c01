// expect: There are more default values than parameters that can have one
#include "orbis/factory/describe.hpp"
#include "orbis/factory/withDefaults.hpp"

struct Point {};

template <>
struct orbis::factory::HostClass<Point> {
    static constexpr char const* name = "tests.Point";
};

void move(Point* point, double distance);

auto const described = orbis::factory::describe<Point>().method("move", &move, "point, distance",
#ifdef CONTROL
                                                                orbis::factory::withDefaults(1.0));
#else
                                                                orbis::factory::withDefaults(nullptr, 1.0));
#endif
