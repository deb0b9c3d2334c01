#pragma once

#include "orbis/factory/marshaling/MarshalingPolicy.hpp"
#include "orbis/factory/ownership/RawClassPointerMarshaler.hpp"

#include <memory>
#include <type_traits>

namespace orbis::factory::detail {

/// The host objects to which values of a native type refer. Policies of such types specialise it.
template <class V>
struct ReferredObjects {
    static constexpr bool any = false;
};

/// Returns the address under which the object of a raw or shared pointer is bound; null for null.
template <class Pointer>
void const* boundAddressOf(Pointer const& pointer)
{
    using T = std::remove_cv_t<typename std::pointer_traits<Pointer>::element_type>;
    return pointer ? MarshalerOf<T*>::boundAddress(const_cast<T*>(std::to_address(pointer))) : nullptr;
}

/// Specialisation base for pointers, which refer to one object.
template <class Pointer>
struct ReferredObject {
    static constexpr bool any = true;

    static Enumeration<COSInterface*> of(Pointer const& value)
    {
        void const* const address = boundAddressOf(value);
        return address ? RawClassPointerMarshaler::toCosi(address) : Enumeration<COSInterface*>();
    }
};

template <class T>
    requires PublishedClass<std::remove_const_t<T>> || NamedType<std::remove_const_t<T>>
struct ReferredObjects<T*> : ReferredObject<T*> {};

} // namespace orbis::factory::detail
