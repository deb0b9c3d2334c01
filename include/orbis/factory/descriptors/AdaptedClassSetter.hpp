#pragma once

#include "orbis/factory/descriptors/CallableSetter.hpp"

namespace orbis::factory::impl {

/// Writes through a free function `F` that takes a `T*` and a value of type `A`.
template <class A, class T, class F>
class AdaptedClassSetter final : public CallableSetter<detail::FunctionOnWriter<A, T, F>> {
public:
    using CallableSetter<detail::FunctionOnWriter<A, T, F>>::CallableSetter;
};

} // namespace orbis::factory::impl
