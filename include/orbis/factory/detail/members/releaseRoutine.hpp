#pragma once

#include "orbis/factory/descriptors/ReleaseRoutine.hpp"
#include "orbis/factory/detail/members/getterTraits.hpp"
#include "orbis/factory/marshaling/PropertyValue.hpp"

#include <type_traits>

namespace orbis::factory::detail {

/// Calls `Routine` with whichever of the object and the value it takes.
template <class T, auto Routine>
void release(COSInterface* object, [[maybe_unused]] COSValue value)
{
    using Traits = CallableTraits<std::remove_cv_t<decltype(Routine)>>;
    if constexpr (std::is_invocable_v<decltype(Routine), COSInterface*, COSValue>)
        Routine(object, value);
    else if constexpr (Traits::kind == CallableKind::Member)
        (nativeSelf<T>(object).*Routine)();
    else if constexpr (Traits::arity == 1)
        Routine(&nativeSelf<T>(object));
    else
        Routine();
}

/// The release routine of a described getter; null for most.
template <class T, class G>
inline constexpr impl::ReleaseRoutine releaseRoutine = nullptr;

template <class T, auto Routine, class G>
inline constexpr impl::ReleaseRoutine releaseRoutine<T, ReleasedGetter<Routine, G>> = &release<T, Routine>;

/// False for a getter whose routine is no valid release routine of `T`.
template <class T, class G>
inline constexpr bool isReleasable = true;

template <class T, auto Routine, class G>
inline constexpr bool isReleasable<T, ReleasedGetter<Routine, G>> = [] {
    using F = std::remove_cv_t<decltype(Routine)>;
    using Traits = CallableTraits<F>;
    if constexpr (MethodOf<F, T>)
        return Traits::arity == 0;
    else if constexpr (std::is_invocable_v<F, COSInterface*, COSValue>)
        return true;
    else
        return Traits::kind == CallableKind::Free && (Traits::arity == 0 || (Traits::arity == 1 && FunctionOn<F, T>));
}();

} // namespace orbis::factory::detail
