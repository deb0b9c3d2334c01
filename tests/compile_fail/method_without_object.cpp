// expect: A free function published as a method takes a pointer to the class first
#include "Published.hpp"

struct Published {};

#ifdef CONTROL
int size(Published const*)
#else
int size(int)
#endif
{
    return 0;
}

auto const described = orbis::factory::describe<Published>().method("size", &size);
