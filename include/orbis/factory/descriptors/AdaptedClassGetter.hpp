#pragma once

#include "orbis/factory/descriptors/CallableGetter.hpp"

namespace orbis::factory::impl {

/// Reads through a free function `F` that takes a `T*` and returns an `R`, marshaled as a `V`.
template <class R, class T, class F, class V>
class AdaptedClassGetter final : public CallableGetter<detail::FunctionOnReader<R, T, F, V>> {
public:
    using CallableGetter<detail::FunctionOnReader<R, T, F, V>>::CallableGetter;
};

} // namespace orbis::factory::impl
