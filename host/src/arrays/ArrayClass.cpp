#include "arrays/ArrayClass.hpp"

#include "arrays/StringElement.hpp"

namespace velmara {

namespace {

// In the order of hvClassID.
constexpr ArrayClass classes[] = {
    {"unknown", 0},
    {"cell", sizeof(void*)},
    {"logical", 1},
    {"char", 2},
    {"double", 8},
    {"single", 4},
    {"int8", 1},
    {"uint8", 1},
    {"int16", 2},
    {"uint16", 2},
    {"int32", 4},
    {"uint32", 4},
    {"int64", 8},
    {"uint64", 8},
    {"string", sizeof(StringElement)},
    {"object", sizeof(void*)},
};

} // namespace

ArrayClass const& arrayClass(hvClassID id)
{
    return classes[id <= hvOBJECT_CLASS ? id : hvUNKNOWN_CLASS];
}

} // namespace velmara
