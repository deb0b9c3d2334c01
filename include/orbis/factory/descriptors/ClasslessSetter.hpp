#pragma once

#include "orbis/factory/descriptors/CallableSetter.hpp"

namespace orbis::factory::impl {

/// Writes a static property through a function `F` that takes a value of type `A`.
template <class A, class F>
class ClasslessSetter final : public CallableSetter<detail::FunctionWriter<A, F>> {
public:
    using CallableSetter<detail::FunctionWriter<A, F>>::CallableSetter;
};

} // namespace orbis::factory::impl
