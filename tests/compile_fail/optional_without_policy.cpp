// expect: There is no marshaling policy for this native type
#include "orbis/factory/OptionalPolicy.hpp"
#include "orbis/factory/describeFunctions.hpp"

struct Point {
    double x, y;
};

#ifdef CONTROL
void move(std::optional<double> distance);
#else
void move(std::optional<Point> distance);
#endif

auto const described = orbis::factory::describeFunctions().function("move", &move, "distance");
