#include "arrays/ArrayClass.hpp"

#include "arrays/StringElement.hpp"

#include "host_extensions/numericClasses.hpp"

#include <array>

namespace velmara {

namespace {

constexpr auto classes = [] {
    std::array<ArrayClass, classCount> table{};
    table[hvUNKNOWN_CLASS] = {"unknown", 0};
    table[hvCELL_CLASS] = {"cell", sizeof(void*)};
    table[hvCHAR_CLASS] = {"char", sizeof(char16_t)};
    table[hvSTRING_CLASS] = {"string", sizeof(StringElement)};
    table[hvOBJECT_CLASS] = {"object", sizeof(void*)};
    table[orbis::host_extensions::functionClass] = {"function", sizeof(void*)};
    for (orbis::host_extensions::NumericClass const& numeric : orbis::host_extensions::numericClasses)
        table[numeric.classID] = {numeric.name, numeric.size};
    return table;
}();

} // namespace

ArrayClass const& arrayClass(hvClassID id)
{
    return classes[id < classCount ? id : hvUNKNOWN_CLASS];
}

} // namespace velmara
