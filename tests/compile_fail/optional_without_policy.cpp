// expect: There is no marshaling policy for this native type
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/types/OptionalPolicy.hpp"

struct Point {
    double x, y;
};

void move(std::optional<EITHER(double, Point)> distance);

auto const described = orbis::factory::describeFunctions().function("move", &move, "distance");
