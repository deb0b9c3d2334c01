#include "arrays/ArrayClass.hpp"

#include "arrays/StringElement.hpp"

#include "host_extensions/numericClasses.hpp"

#include <array>

namespace velmara {

namespace {

constexpr auto classes = [] {
    std::array<ArrayClass, hvOBJECT_CLASS + 1> table{};
    table[hvUNKNOWN_CLASS] = {"unknown", 0};
    table[hvCELL_CLASS] = {"cell", sizeof(void*)};
    table[hvCHAR_CLASS] = {"char", sizeof(char16_t)};
    table[hvSTRING_CLASS] = {"string", sizeof(StringElement)};
    table[hvOBJECT_CLASS] = {"object", sizeof(void*)};
    for (orbis::host_extensions::NumericClass const& numeric : orbis::host_extensions::numericClasses)
        table[numeric.classID] = {numeric.name, numeric.size};
    return table;
}();

} // namespace

ArrayClass const& arrayClass(hvClassID id)
{
    return classes[id <= hvOBJECT_CLASS ? id : hvUNKNOWN_CLASS];
}

} // namespace velmara
