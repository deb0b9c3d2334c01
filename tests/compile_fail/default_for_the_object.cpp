// expect: There are more default values than parameters that can have one
#include "Published.hpp"

#include "orbis/factory/withDefaults.hpp"

struct Published {};

void move(Published* point, double distance);

auto const described = orbis::factory::describe<Published>().method("move", &move, "point, distance",
#ifdef CONTROL
                                                                    orbis::factory::withDefaults(1.0));
#else
                                                                    orbis::factory::withDefaults(nullptr, 1.0));
#endif
