#pragma once

#include "orbis/factory/descriptors/CallableGetter.hpp"

namespace orbis::factory::impl {

/// Reads a static or constant property through a function without parameters that returns an `R`, marshaled as a `V`.
template <class R, class V>
class ClasslessGetter final : public CallableGetter<detail::FunctionReader<R, V>> {
public:
    using CallableGetter<detail::FunctionReader<R, V>>::CallableGetter;
};

} // namespace orbis::factory::impl
