// expect: A static property has no object: give static data, or a free function
#include "Published.hpp"

struct Published {
#ifdef CONTROL
    inline static int value = 0;
#else
    int value = 0;
#endif
};

auto const described = orbis::factory::describe<Published>().staticProperty("value", &Published::value);
