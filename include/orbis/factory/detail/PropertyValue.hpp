#pragma once

#include "orbis/factory/RawClassPointerMarshaler.hpp"
#include "orbis/factory/detail/Argument.hpp"
#include "orbis/factory/impl/validateSelfPointer.hpp"

#include <type_traits>

namespace orbis::factory::detail {

/// The native object behind `object`; throws the `null_self` error when there is none.
template <class T>
T& nativeSelf(COSInterface const* object)
{
    T* const self = MarshalerOf<T*>::template fromObject<T>(object);
    if (!self) [[unlikely]]
        impl::validateSelfPointer(self);
    return *self;
}

/// What `function` gives, as a value of the type `V`.
template <class V, class F>
COSValue toValue(F&& function)
{
    COSValue value;
    int outputCount = 1;
    storeResult<V>(outputCount, &value, std::forward<F>(function));
    return value;
}

template <class V>
inline constexpr bool refersToObjects =
    std::is_pointer_v<typename NativeType<V>::Type> && PublishedClass<MarshaledTypeOf<V>>;

/// The host objects that a native value refers to.
template <class V>
Enumeration<COSInterface*> interfacesOf([[maybe_unused]] V const& value)
{
    if constexpr (refersToObjects<V>) {
        using T = MarshaledTypeOf<V>;
        if (value)
            return RawClassPointerMarshaler::toCosi(MarshalerOf<V>::boundAddress(const_cast<T*>(value)));
    }
    return {};
}

} // namespace orbis::factory::detail
