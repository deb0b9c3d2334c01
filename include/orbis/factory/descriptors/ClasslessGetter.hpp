#pragma once

#include "orbis/factory/descriptors/CallableGetter.hpp"

namespace orbis::factory::impl {

/// Reads a static or constant property through a function without parameters that returns an `R`, marshaled as a `V`.
template <class R, class V>
class ClasslessGetter final : public CallableGetter<ClasslessGetter<R, V>, R, V> {
public:
    static constexpr bool needsObject = false;

    explicit ClasslessGetter(detail::NativeResult<R> (*function)(), ReleaseRoutine release = nullptr)
        : CallableGetter<ClasslessGetter, R, V>(release),
          function_(function)
    {
    }

    detail::NativeResult<R> read(COSInterface*) const { return function_(); }
    static auto wholeOf(COSInterface*) { return detail::NoWhole(); }

private:
    detail::NativeResult<R> (*function_)();
};

} // namespace orbis::factory::impl
