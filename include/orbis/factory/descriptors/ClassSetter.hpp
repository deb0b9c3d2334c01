#pragma once

#include "orbis/factory/descriptors/CallableSetter.hpp"

namespace orbis::factory::impl {

/// Writes through a member `F` of `T`: a function that takes an `A`, or data of type `A`.
template <class A, class T, class F>
class ClassSetter final : public CallableSetter<detail::MemberWriter<A, T, F>> {
public:
    using CallableSetter<detail::MemberWriter<A, T, F>>::CallableSetter;
};

} // namespace orbis::factory::impl
