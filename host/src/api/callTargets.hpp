#pragma once

#include "classes/Class.hpp"
#include "classes/PackageTree.hpp"
#include "machine/Machine.hpp"

#include <string_view>

namespace velmara {

/// The class of that full name, described. Throws "VELMARA:class:unknown" when there is none.
Class& requireClass(Machine& machine, std::string_view fullName);

/// Throws "VELMARA:object:notObject" for what is no object array.
void requireObjectArray(hvArray_tag const* array);

/// The object that an object array means for calls: its first one, or null where that is null or missing. Throws
/// for what is no object array, and for an object that cannot be used.
inline Object* requireObject(Machine& machine, hvArray_tag* array)
{
    if (!array || Array::of(array)->classID() != hvOBJECT_CLASS) [[unlikely]]
        requireObjectArray(array);
    Object* const object = Array::of(array)->size() == 0 ? nullptr : Array::of(array)->objects().front();
    if (object)
        object->requireUsable(machine);
    return object;
}

/// The class whose members are meant by an object array: its object's, or its own.
inline Class& requireClassOf(Machine& machine, hvArray_tag* array, Object* object)
{
    return object ? *Class::of(object->classOf()) : requireClass(machine, Array::of(array)->className());
}

} // namespace velmara
