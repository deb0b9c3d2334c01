// expect: The setter takes another type than the getter gives: make the two types one.
#include "Published.hpp"

struct Published {
    int value() const { return 0; }
    void setValue(EITHER(int const&, double)) {}
};

auto const described = orbis::factory::describe<Published>().property("value", &Published::value, &Published::setValue);
