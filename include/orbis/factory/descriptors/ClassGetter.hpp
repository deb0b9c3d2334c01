#pragma once

#include "orbis/factory/descriptors/CallableGetter.hpp"

namespace orbis::factory::impl {

/// Reads through a member `F` of `T`, a function or data, that yields an `R`, marshaled as a `V`.
template <class R, class T, class F, class V>
class ClassGetter final : public CallableGetter<detail::MemberReader<R, T, F, V>> {
public:
    using CallableGetter<detail::MemberReader<R, T, F, V>>::CallableGetter;
};

} // namespace orbis::factory::impl
