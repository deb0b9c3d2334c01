#pragma once

#include "orbis/factory/classes/HostClass.hpp"
#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/bindings/NativeOwnership.hpp"
#include "orbis/factory/detail/objects/ObjectCasts.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterface.hpp"
#include "orbis/COSInterfacePtr.hpp"
#include "orbis/COSNameID.hpp"
#include "orbis/objectArrays.hpp"

namespace orbis::factory::detail {

/// The native object recorded for `className` in `object`; null for null, and when nothing is recorded.
[[gnu::always_inline]] inline void* nativeObject(COSInterface const* object, char const* className)
{
    if (!object)
        return nullptr;
    COSNameID const name(className); // first: else the function to call is kept meanwhile
    return object->getNativeObject(name);
}

/// The native object recorded for `className` in the first object of `array`; null when the array is empty, its
/// first element is null, or nothing is recorded. It stands here because every call of a member begins with it: inlined
/// it costs what the host's operations cost.
[[gnu::always_inline]] inline void* nativeObject(hvArray_tag const* array, char const* className)
{
    if (!array || array->get_number_of_elements() == 0)
        return nullptr;
    COSInterfacePtr const object = omGetArrayElement(array, 0);
    return nativeObject(static_cast<COSInterface const*>(object), className);
}

/// What the policies for one object have in common. `Cast` goes between the address under which an object is bound
/// and a pointer to its native class.
template <class Cast>
class ObjectPointerMarshaler {
public:
    /// False for objects that live inside their host objects and are never bound.
    static constexpr bool isHandle = Cast::isHandle;

    /// True when objects may be of published subclasses.
    static constexpr bool isHeterogeneous = Cast::isHeterogeneous;

    /// The address under which the object is bound.
    template <PublishedClass T>
    static void* boundAddress(T* object)
    {
        return Cast::toBound(object);
    }

    /// The bound host object, made when there is none; 0-by-0 for null.
    template <PublishedClass T>
    static void toHost(T const* value, hvArray** out)
    {
        NewArray array(Cast::announce(value));
        NativeOwnership<T>::share(value, array.get());
        *out = array.release();
    }

    /// Back from the address under which the object is bound; null for an object of another class.
    template <PublishedClass T>
    static T* fromBound(void* bound)
    {
        return Cast::template fromBound<T>(bound);
    }

    /// The native object of the array's first element, or null.
    template <PublishedClass T>
    static T* fromHost(hvArray_tag const* in)
    {
        return Cast::template fromBound<T>(nativeObject(in, HostClass<T>::name));
    }

    /// The native object of a host object (null allowed), or null.
    template <PublishedClass T>
    static T* fromObject(COSInterface const* object)
    {
        return Cast::template fromBound<T>(nativeObject(object, HostClass<T>::name));
    }

    template <PublishedClass T>
    static COSNameID dataTypeName()
    {
        return COSNameID(HostClass<T>::name);
    }

    template <PublishedClass T>
    static char const* dataTypeText()
    {
        return HostClass<T>::name;
    }
};

} // namespace orbis::factory::detail
