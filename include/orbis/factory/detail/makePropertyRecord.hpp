#pragma once

#include "orbis/factory/PropertyRecord.hpp"
#include "orbis/factory/detail/releaseRoutine.hpp"
#include "orbis/factory/detail/setterTraits.hpp"

namespace orbis::factory::detail {

template <class G>
G const& unwrapped(G const& getter)
{
    return getter;
}

template <auto Routine, class G>
G const& unwrapped(ReleasedGetter<Routine, G> const& released)
{
    return released.getter;
}

/// Gives the record a getter of `T` that reads through `getter`.
template <class T, class G>
void setGetter(PropertyRecord& record, G const& getter)
{
    using Traits = GetterTraits<T, G>;
    using Pointer = typename Traits::Pointer;
    record.getter = static_cast<Pointer>(unwrapped(getter));
    record.needsObject |= Traits::needsObject;
    record.makeGetter = [](impl::Callable const& callable) -> std::unique_ptr<impl::Getter> {
        return std::make_unique<typename Traits::Getter>(callable.as<Pointer>(), releaseRoutine<T, G>);
    };
}

/// Gives the record a setter of `T` that writes through `setter`.
template <class T, class S>
void setSetter(PropertyRecord& record, S const& setter)
{
    using Traits = SetterTraits<T, S>;
    using Pointer = typename Traits::Pointer;
    record.setter = static_cast<Pointer>(setter);
    record.needsObject |= Traits::needsObject;
    record.makeSetter = [](impl::Callable const& callable) -> std::unique_ptr<impl::Setter> {
        return std::make_unique<typename Traits::Setter>(callable.as<Pointer>());
    };
}

} // namespace orbis::factory::detail
