// expect: A setter is a data member that is not const or a member function that takes one value, of the
#include "Published.hpp"

struct Published {
    int EITHER(, const) value = 0;
};

auto const described = orbis::factory::describe<Published>().writeOnlyProperty("value", &Published::value);
