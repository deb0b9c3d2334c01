#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "orbis/COSInterface.hpp"

namespace orbis {
template <class T>
class Enumeration;
}

namespace orbis::factory::detail {

/// The host objects to which values of a native type refer. Policies of such types specialise it, with a `find` that
/// stores the objects of a value in an empty enumeration.
template <class V>
struct ReferredObjects {
    static constexpr bool any = false;
};

template <class T>
T* rawPointer(T* pointer)
{
    return pointer;
}

template <class Pointer>
auto* rawPointer(Pointer const& pointer)
{
    return pointer.get();
}

/// Returns the address under which the object of a raw or shared pointer is bound; null for null.
template <class Pointer>
void const* boundAddressOf(Pointer const& pointer)
{
    using T = std::remove_cv_t<std::remove_pointer_t<decltype(rawPointer(pointer))>>;
    return pointer ? MarshalerOf<T*>::boundAddress(const_cast<T*>(rawPointer(pointer))) : nullptr;
}

/// Stores the host object that is bound to `address`, if there is one. Creates none.
ORBIS_FACTORY_API void findBound(void const* address, Enumeration<COSInterface*>& found);

/// Specialisation base for pointers, which refer to one object.
template <class Pointer>
struct ReferredObject {
    static constexpr bool any = true;

    static void find(Pointer const& value, Enumeration<COSInterface*>& found)
    {
        findBound(boundAddressOf(value), found);
    }
};

template <class T>
    requires PublishedClass<std::remove_const_t<T>> || NamedType<std::remove_const_t<T>>
struct ReferredObjects<T*> : ReferredObject<T*> {};

} // namespace orbis::factory::detail
