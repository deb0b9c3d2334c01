// expect: A setter is a data member that is not const, a member function that takes one value
#include "Published.hpp"

struct Published {
    int EITHER(, const) value = 0;
};

auto const described = orbis::factory::describe<Published>().writeOnlyProperty("value", &Published::value);
