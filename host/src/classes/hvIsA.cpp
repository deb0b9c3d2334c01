#include "arrays/Array.hpp"
#include "classes/classHierarchy.hpp"

#include "libhv/libhv.hpp"

using namespace velmara;

bool matrix::detail::noninlined::hv_array_api::hvIsA(hvArray_tag const* array, char const* className)
{
    if (!array || !className)
        return false;
    Array const& object = *Array::of(array);
    if (object.classID() != hvOBJECT_CLASS)
        return object.className() == className;
    Name const name = findInterned(className);
    return name && (name == object.objectClass() || isSubclass(object.objectClass(), name));
}
