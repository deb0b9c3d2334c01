// expect: A getter is a data member, a member function without parameters, static data, or a free
#include "Published.hpp"

struct Published {
    int value = 0;
};

struct Other {
    int value = 0;
};

auto const described = orbis::factory::describe<Published>().property("value", &EITHER(Published, Other)::value);
