#include "arrays/ElementCopy.hpp"

#include "values/HostText.hpp"

#include "velmara/ArrayPtr.hpp"

#include "libhv/libhv.hpp"
#include "orbis/objectArrays.hpp"

namespace velmara::console {

namespace {

void copyCell(hvArray_tag const* source, std::size_t from, hvArray_tag* target, std::size_t to)
{
    hvArray_tag const* const cell = orbis::host_extensions::getCell(source, from);
    ArrayPtr copy(cell ? hvCreateSharedDataCopy(cell) : nullptr);
    hvSetCell(target, to, copy.get());
    static_cast<void>(copy.release());
}

} // namespace

void copyOwnedElement(hvArray_tag const* source, std::size_t from, hvArray_tag* target, std::size_t to)
{
    switch (source->_get_class_id_non_trivial()) {
    case hvCELL_CLASS:
        return copyCell(source, from, target, to);
    case hvSTRING_CLASS:
        return storeString(target, to, stringAt(*source, from));
    default:
        orbis::omSetArrayElement(target, to, orbis::omGetArrayElement(source, from));
    }
}

} // namespace velmara::console
