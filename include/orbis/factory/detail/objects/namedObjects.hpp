#pragma once

#include "orbis/factory/detail/objects/NamedClass.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterface.hpp"

#include <cstddef>
#include <typeinfo>

/// Objects of named classes, which cross without their types.
namespace orbis::factory {

/// Who destroys a native object that reaches the host as a result.
enum class ResultOwner {
    Host,   ///< the host object owns it, and destroys it
    Native, ///< native code, which keeps it as long as scripts can use it
    Copy,   ///< the host object, of a copy
    Whole   ///< the object that the member was called on, inside which it lies: that is kept alive as long as the host
            ///< object of the result, which becomes invalid with it
};

namespace detail {

/// Returns the native object of the array's first element or of a host object; null when there is none, or one of
/// another class.
ORBIS_FACTORY_API void* nativeOf(NamedClass const& named, hvArray_tag const* in);
ORBIS_FACTORY_API void* nativeOf(NamedClass const& named, COSInterface const* object);

/// The same, but throws the `null_input` error instead of returning null.
ORBIS_FACTORY_API void* requireNativeOf(NamedClass const& named, hvArray_tag const* in);

/// Throws the `cannot_copy` error for an object of a derived class, of which only a part would be copied.
ORBIS_FACTORY_API void requireExactType(NamedClass const& named, void const* object);

/// Returns a new 1-by-1 array, owned by the caller, with the host object of `object`; 0-by-0 for null. If there is
/// none, one of the most derived published class is created, and owns the native object as `owner` says. With `Host`,
/// one is created in any case, and the caller transfers the native object: it is deleted when this throws. In debug
/// builds, one on the stack or in static storage is refused instead. `whole` is used
/// with `Whole`; with `Host`, it is the object that the result lies inside, which is refused. Throws when the class is
/// not published; then nothing has changed.
ORBIS_FACTORY_API hvArray_tag* announceNamed(NamedClass const& named, void const* object, ResultOwner owner,
                                             COSInterface* whole);

/// Like `announceNamed` for classes with a `HostClass`: for `bound`, not null, which lies inside the native object of
/// `whole` or, without one, is borrowed from native code: so its host object does not own it.
ORBIS_FACTORY_API hvArray_tag* announcePart(void* bound, std::type_info const& dynamicType,
                                            NativeClassRecord const& staticClass, COSInterface* whole);

/// Returns whether an address lies inside an object.
inline bool isInside(void const* address, void const* object, std::size_t size)
{
    return static_cast<std::size_t>(static_cast<char const*>(address) - static_cast<char const*>(object)) < size;
}

/// Returns the native object of the array's first element and transfers it to the caller: its host object becomes
/// invalid. Null when there is no such object. Throws an `Exception` when its host object does not own it alone.
ORBIS_FACTORY_API void* takeNamed(NamedClass const& named, hvArray_tag const* in);

/// Throws what `shareNamed` or, with `alone`, `takeNamed` would, and the `null_input` error for an object of another
/// class. Changes nothing.
ORBIS_FACTORY_API void requireOwned(NamedClass const& named, hvArray_tag const* in, bool alone);

} // namespace detail
} // namespace orbis::factory
