// expect: A release routine is a member function without parameters, or a free function
#include "Published.hpp"

struct Published {
    int lock() { return 0; }
    void unlock(EITHER(, int)) {}
};

auto const described = orbis::factory::describe<Published>().property(
    "value", orbis::factory::releasedBy<&Published::unlock>(&Published::lock));
