#pragma once

#include "orbis/factory/classes/HostClass.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/throwNullInput.hpp"
#include "orbis/factory/marshaling/Marshaler.hpp"

namespace orbis::factory {

template <class T>
struct MarshalingPolicy;

/// References to classes with a `HostClass` whose objects are bound. An argument refers to the object that scripts
/// pass, and must be one; a parameter by value gets a copy of it. A result is marshaled as `detail::objectResult` does:
/// native code keeps the object, which is inside the one that the member was called on.
class HandleObjectPolicy {};

template <>
class Marshaler<HandleObjectPolicy> : public detail::DataTypeName<Marshaler<HandleObjectPolicy>> {
public:
    /// Refers to an object for the length of a call: `Argument` passes it on as a reference.
    template <class T>
    struct Reference {
        T& object;
    };

    template <PublishedClass T>
    static Reference<T> fromHost(hvArray_tag const* in)
    {
        T* const object = Marshaler<typename MarshalingPolicy<T*>::Type>::template fromHost<T>(in);
        if (!object)
            detail::throwNullInput(in, HostClass<T>::name);
        return {*object};
    }

    template <PublishedClass T>
    static char const* dataTypeText()
    {
        return HostClass<T>::name;
    }

    template <PublishedClass T>
    static consteval bool refusesNull()
    {
        return true;
    }
};

} // namespace orbis::factory
