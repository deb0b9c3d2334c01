#pragma once

#include "orbis/factory/classes/HostClass.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/bindings/NativeOwnership.hpp"
#include "orbis/factory/detail/objects/ObjectCasts.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterface.hpp"
#include "orbis/COSInterfacePtr.hpp"
#include "orbis/COSNameID.hpp"
#include "orbis/objectArrays.hpp"

namespace orbis::factory::detail {

/// Returns the native object recorded for `className` in `object`; null for null, and when nothing is recorded.
[[gnu::always_inline]] inline void* nativeObject(COSInterface const* object, char const* className)
{
    if (!object)
        return nullptr;
    COSNameID const name(className); // as a temporary it would be created while the call holds its function pointer
    return object->getNativeObject(name);
}

/// Returns the native object recorded for `className` in the first object of `array`; null when the array is empty, its
/// first element is null, or nothing is recorded. Inlined, because every member call begins with it.
[[gnu::always_inline]] inline void* nativeObject(hvArray_tag const* array, char const* className)
{
    if (!array || array->get_number_of_elements() == 0)
        return nullptr;
    COSInterfacePtr const object = omGetArrayElement(array, 0);
    return nativeObject(static_cast<COSInterface const*>(object), className);
}

/// Common marshaler of the policies for single objects. `Cast` converts between the address under which an object is
/// bound and a pointer to its native class.
template <class Cast>
class ObjectPointerMarshaler : public DataTypeName<ObjectPointerMarshaler<Cast>> {
public:
    /// False for value classes, whose objects are never bound.
    static constexpr bool isHandle = Cast::isHandle;

    /// True if objects may be of published subclasses.
    static constexpr bool isHeterogeneous = Cast::isHeterogeneous;

    /// Returns the address under which the object is bound.
    template <PublishedClass T>
    static void* boundAddress(T* object)
    {
        return Cast::toBound(object);
    }

    /// Stores a 1-by-1 array with the bound host object, which is created if there is none; 0-by-0 for null.
    template <PublishedClass T>
    static void toHost(T const* value, hvArray** out)
    {
        NewArray array(Cast::announce(value));
        NativeOwnership<T>::share(value, array.get());
        *out = array.release();
    }

    /// Converts back from the address under which the object is bound; null for an object of another class.
    template <PublishedClass T>
    static T* fromBound(void* bound)
    {
        return Cast::template fromBound<T>(bound);
    }

    /// Returns the native object of the array's first element, or null.
    template <PublishedClass T>
    static T* fromHost(hvArray_tag const* in)
    {
        return Cast::template fromBound<T>(nativeObject(in, HostClass<T>::name));
    }

    /// Returns the native object of a host object (null allowed), or null.
    template <PublishedClass T>
    static T* fromObject(COSInterface const* object)
    {
        return Cast::template fromBound<T>(nativeObject(object, HostClass<T>::name));
    }

    template <PublishedClass T>
    static char const* dataTypeText()
    {
        return HostClass<T>::name;
    }
};

} // namespace orbis::factory::detail
