// expect: A getter is a data member or a member function without parameters, of the class or a public
#include "Published.hpp"

struct Published {
    int value(EITHER(, int)) const { return 0; }
};

auto const described = orbis::factory::describe<Published>().property("value", &Published::value);
