// expect: There are more default values than parameters that can have one
#include "Published.hpp"

#include "orbis/factory/withDefaults.hpp"

struct Published {};

void move(Published* point, double distance);

auto const described = orbis::factory::describe<Published>().method(
    "move", &move, "point, distance", orbis::factory::withDefaults(EITHER(1.0, nullptr, 1.0)));
