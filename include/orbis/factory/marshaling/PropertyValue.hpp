#pragma once

#include "orbis/factory/base/validateSelfPointer.hpp"
#include "orbis/factory/marshaling/Argument.hpp"

#include <utility>

namespace orbis::factory::detail {

/// Returns the native object behind `object`; throws the `null_self` error when there is none.
template <class T>
[[gnu::always_inline]] inline T& nativeSelf(COSInterface const* object)
{
    T* const self = MarshalerOf<T*>::template fromObject<T>(object);
    if (!self) [[unlikely]]
        impl::validateSelfPointer(self);
    return *self;
}

/// Calls `function` and returns its result as a value of type `V`, owned by the caller.
template <class V, class F>
[[gnu::always_inline]] inline COSValue toValue(F&& function)
{
    COSValue value;
    int outputCount = 1;
    storeResult<V>(outputCount, &value, std::forward<F>(function));
    return value;
}

} // namespace orbis::factory::detail
