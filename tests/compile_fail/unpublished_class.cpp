// expect: The class that this pointer points to is not published: specialise orbis::factory::HostClass for it
#include "Published.hpp"

#include "orbis/factory/describeFunctions.hpp"

struct Published {};
struct Unknown {};

void use(EITHER(Published, Unknown) *);

auto const described = orbis::factory::describeFunctions().function("use", &use);
