// expect: There is no marshaling policy for this native type: include the header of its policy, or specialise
#include "Published.hpp"

struct Published {
#ifdef CONTROL
    void take(double) {}
#else
    void take(long double) {}
#endif
};

auto const described =
    orbis::factory::describe<Published>().method("take", &Published::take).method("again", &Published::take);
