#pragma once

#include "orbis/factory/descriptors/CallableGetter.hpp"

#include <functional>

namespace orbis::factory::impl {

/// Reads through a member `F` of `T`, a function or data, that yields an `R`, marshaled as a `V`.
template <class R, class T, class F, class V>
class ClassGetter final : public CallableGetter<ClassGetter<R, T, F, V>, R, V> {
public:
    static constexpr bool needsObject = true;

    explicit ClassGetter(F member, ReleaseRoutine release = nullptr)
        : CallableGetter<ClassGetter, R, V>(release),
          member_(member)
    {
    }

    detail::NativeResult<R> read(COSInterface* object) const
    {
        return std::invoke(member_, detail::nativeSelf<T>(object));
    }
    static auto wholeOf(COSInterface* object) { return detail::WholeOfProperty<T>{object}; }

private:
    F member_;
};

} // namespace orbis::factory::impl
