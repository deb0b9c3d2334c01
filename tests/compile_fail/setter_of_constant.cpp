// expect: A setter is a data member that is not const, a member function that takes one value
#include "Published.hpp"

struct Published {
#ifdef CONTROL
    int value = 0;
#else
    int const value = 0;
#endif
};

auto const described = orbis::factory::describe<Published>().writeOnlyProperty("value", &Published::value);
