#pragma once

#include "orbis/factory/descriptors/CallableGetter.hpp"

#include <utility>

namespace orbis::factory::impl {

/// Reads a static or constant property through a function `F` without parameters that returns an `R`, marshaled as a
/// `V`.
template <class R, class V, class F = R (*)()>
class ClasslessGetter final : public CallableGetter<ClasslessGetter<R, V, F>, R, V> {
public:
    static constexpr bool needsObject = false;

    explicit ClasslessGetter(F function, ReleaseRoutine release = nullptr)
        : CallableGetter<ClasslessGetter, R, V>(release),
          function_(std::move(function))
    {
    }

    R read(COSInterface*) const { return function_(); }
    static auto wholeOf(COSInterface*) { return detail::NoWhole(); }

private:
    F function_;
};

} // namespace orbis::factory::impl
