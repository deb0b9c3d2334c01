// expect: A free function published as a method takes a pointer to the class first
#include "Published.hpp"

struct Published {};

int size(EITHER(Published const*, int));

auto const described = orbis::factory::describe<Published>().method("size", &size);
