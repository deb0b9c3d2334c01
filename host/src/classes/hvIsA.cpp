#include "arrays/arrayArguments.hpp"
#include "classes/classHierarchy.hpp"

#include "libhv/libhv.hpp"

using namespace velmara;

bool matrix::detail::noninlined::hv_array_api::hvIsA(hvArray_tag const* array, char const* className)
{
    if (!array || !className)
        return false;
    Array const& asked = *Array::of(array);
    if (asked.classID() != hvOBJECT_CLASS)
        return asked.className() == className;
    Name const name = findInterned(className);
    return name && (name == asked.objectClass() || isSubclass(asked.objectClass(), name));
}
