// expect: There is no marshaling policy for this native type: include the header of its policy, or specialise
#include "Published.hpp"

struct Published {
    void take(EITHER(double, long double)) {}
};

auto const described =
    orbis::factory::describe<Published>().method("take", &Published::take).method("again", &Published::take);
