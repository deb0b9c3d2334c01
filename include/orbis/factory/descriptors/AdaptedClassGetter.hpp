#pragma once

#include "orbis/factory/descriptors/CallableGetter.hpp"

#include <utility>

namespace orbis::factory::impl {

/// Reads through a free function `F` that takes a `T*` and returns an `R`, marshaled as a `V`.
template <class R, class T, class F, class V>
class AdaptedClassGetter final : public CallableGetter<AdaptedClassGetter<R, T, F, V>, R, V> {
public:
    static constexpr bool needsObject = true;

    explicit AdaptedClassGetter(F function, ReleaseRoutine release = nullptr)
        : CallableGetter<AdaptedClassGetter, R, V>(release),
          function_(std::move(function))
    {
    }

    R read(COSInterface* object) const { return function_(&detail::nativeSelf<T>(object)); }
    static auto wholeOf(COSInterface* object) { return detail::WholeOfProperty<T>{object}; }

private:
    F function_;
};

} // namespace orbis::factory::impl
