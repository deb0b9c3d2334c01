// expect: A static property has no object: give static data, or a free function
#include "Published.hpp"

struct Published {
    EITHER(inline static, ) int value = 0;
};

auto const described = orbis::factory::describe<Published>().staticProperty("value", &Published::value);
