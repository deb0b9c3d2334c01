#pragma once

#include "orbis/factory/impl/CallableGetter.hpp"

namespace orbis::factory::impl {

/// Reads through a member function `F` of `T` that gives an `R`, stored as a `V`.
template <class R, class T, class F, class V>
class ClassGetter final : public CallableGetter<ClassGetter<R, T, F, V>, R, V> {
public:
    explicit ClassGetter(F function, ReleaseRoutine release = nullptr)
        : CallableGetter<ClassGetter, R, V>(release),
          function_(function)
    {
    }

    R read(COSInterface* object) const { return (detail::nativeSelf<T>(object).*function_)(); }

private:
    F function_;
};

} // namespace orbis::factory::impl
