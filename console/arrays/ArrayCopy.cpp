#include "arrays/ArrayCopy.hpp"

#include "handles/NumericClass.hpp"

#include "velmara/ArrayPtr.hpp"

#include "additions/additions.hpp"
#include "orbis/objectArrays.hpp"
#include "string_matrix/string_matrix.hpp"

#include <cstring>

namespace velmara::console {

namespace {

void copyCell(hvArray_tag const* source, hvArray_tag* target, std::size_t index)
{
    hvArray_tag const* const cell = orbis::additions::getCell(source, index);
    ArrayPtr copy(cell ? hvCreateSharedDataCopy(cell) : nullptr);
    hvSetCell(target, index, copy.get());
    static_cast<void>(copy.release());
}

void copyString(hvArray_tag const* source, hvArray_tag* target, std::size_t index)
{
    auto const& strings = Tarnwick::String::getString(source);
    if (!strings.isMissing(index))
        orbis::additions::setString(target, index, {strings.getText(index), strings.getLength(index)});
}

} // namespace

void copyElements(hvArray_tag const* source, hvArray_tag* target)
{
    hvClassID const classID = source->_get_class_id_non_trivial();
    std::size_t const count = source->get_number_of_elements();
    if (void const* const data = orbis::additions::getData(source)) {
        if (count != 0)
            std::memcpy(orbis::additions::getWritableData(target), data, count * memoryOfElement(classID));
        return;
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (classID == hvCELL_CLASS)
            copyCell(source, target, i);
        else if (classID == hvSTRING_CLASS)
            copyString(source, target, i);
        else
            orbis::omSetArrayElement(target, i, orbis::omGetArrayElement(source, i));
    }
}

} // namespace velmara::console
