// expect: A getter is a data member, a member function without parameters, static data, or a free
#include "Published.hpp"

struct Published {
#ifdef CONTROL
    int value() const { return 0; }
#else
    int value(int) const { return 0; }
#endif
};

auto const described = orbis::factory::describe<Published>().property("value", &Published::value);
