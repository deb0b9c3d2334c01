#include "marshal/describeArray.hpp"

#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"

namespace orbis::factory {

using namespace host_extensions;

namespace {

std::string className(hvClassID classID)
{
    switch (classID) {
    case hvCELL_CLASS:
        return "cell";
    case hvCHAR_CLASS:
        return "char";
    case hvSTRING_CLASS:
        return "string";
    case hvOBJECT_CLASS:
        return "object";
    default:
        NumericClass const* const numeric = findNumericClass(classID);
        return numeric ? numeric->name : "unknown";
    }
}

} // namespace

std::string describeArray(hvArray_tag const* array)
{
    if (!array)
        return "an empty cell";
    std::size_t const* const size = array->get_dimensions();
    std::string const name = className(array->_get_class_id_non_trivial());
    return size[0] == 1 && size[1] == 1 ? name
                                        : name + " of " + std::to_string(size[0]) + "-by-" + std::to_string(size[1]);
}

std::string placeOfElement(std::size_t index)
{
    return "element " + std::to_string(index) + " (counted from 0)";
}

} // namespace orbis::factory
