// expect: A getter is a data member or a member function without parameters, of the class or a public
#include "Published.hpp"

struct Other {
    int value = 0;
};

struct Published : EITHER(public, private) Other {};

auto const described = orbis::factory::describe<Published>().property("value", &Other::value);
