#include "values/ArrayClass.hpp"

namespace velmara {

namespace {

// In the order of hvClassID.
constexpr ArrayClass classes[] = {
    {"unknown", 0, false}, {"cell", sizeof(void*), false},
    {"logical", 1, true},  {"char", 2, true},
    {"double", 8, true},   {"single", 4, true},
    {"int8", 1, true},     {"uint8", 1, true},
    {"int16", 2, true},    {"uint16", 2, true},
    {"int32", 4, true},    {"uint32", 4, true},
    {"int64", 8, true},    {"uint64", 8, true},
    {"string", 0, false},  {"object", sizeof(void*), false},
};

} // namespace

ArrayClass const& arrayClass(hvClassID id)
{
    return classes[id <= hvOBJECT_CLASS ? id : hvUNKNOWN_CLASS];
}

} // namespace velmara
