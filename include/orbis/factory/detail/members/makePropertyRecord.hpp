#pragma once

#include "orbis/factory/descriptors/MemberText.hpp"
#include "orbis/factory/detail/members/DescribedProperty.hpp"
#include "orbis/factory/detail/members/PropertyRecord.hpp"
#include "orbis/factory/detail/members/releaseRoutine.hpp"
#include "orbis/factory/detail/members/setterTraits.hpp"

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

/// How a described getter of `T` is stored in the record, and created from it for the descriptor.
template <class T, class G>
struct DescribedGetter {
    using Pointer = typename GetterTraits<T, G>::Pointer;
    using Access = typename GetterTraits<T, G>::Getter;
    static constexpr bool needsObject = GetterTraits<T, G>::needsObject;

    static impl::Callable keep(G const& getter) { return static_cast<Pointer>(unwrapped(getter)); }
    static Access make(impl::Callable const& kept) { return Access(kept.as<Pointer>(), releaseRoutine<T, G>); }
};

/// The same for a setter.
template <class T, class S>
struct DescribedSetter {
    using Pointer = typename SetterTraits<T, S>::Pointer;
    using Access = typename SetterTraits<T, S>::Setter;
    static constexpr bool needsObject = SetterTraits<T, S>::needsObject;

    static impl::Callable keep(S const& setter) { return static_cast<Pointer>(setter); }
    static Access make(impl::Callable const& kept) { return Access(kept.as<Pointer>()); }
};

template <class T>
struct DescribedGetter<T, NoAccess> {
    using Access = NoAccess;
    static constexpr bool needsObject = false;

    static impl::Callable keep(NoAccess) { return {}; }
    static Access make(impl::Callable const&) { return {}; }
};

template <class T>
struct DescribedSetter<T, NoAccess> : DescribedGetter<T, NoAccess> {};

template <class T, class G, class S>
PropertyRecord propertyRecord(char const* name, G const& getter, S const& setter, PropertyText const& text)
{
    using Reading = DescribedGetter<T, G>;
    using Writing = DescribedSetter<T, S>;
    using Reader = typename Reading::Access;
    using Writer = typename Writing::Access;
    PropertyRecord record{name, text.attributes};
    record.make = [](PropertyRecord const& from) -> std::unique_ptr<impl::PropertyImpl> {
        return std::make_unique<DescribedProperty<Reader, Writer, isReleased<G>>>(
            from.name, [&] { return Reading::make(from.getter); }, [&] { return Writing::make(from.setter); },
            from.attributes);
    };
    record.getter = Reading::keep(getter);
    record.setter = Writing::keep(setter);
    record.text = text.text;
    record.needsObject = Reading::needsObject || Writing::needsObject;
    return record;
}

} // namespace orbis::factory::detail
