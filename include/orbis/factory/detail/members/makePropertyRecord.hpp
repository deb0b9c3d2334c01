#pragma once

#include "orbis/factory/descriptors/MemberText.hpp"
#include "orbis/factory/detail/members/DescribedProperty.hpp"
#include "orbis/factory/detail/members/PropertyRecord.hpp"
#include "orbis/factory/detail/members/StoredCallable.hpp"
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

    static void keep(G const& getter, PropertyRecord& record)
    {
        auto const stored = static_cast<Pointer>(unwrapped(getter));
        record.getter = StoredCallable<Pointer>::target(stored);
        record.keptGetter = StoredCallable<Pointer>::kept(stored);
    }
    static Access make(PropertyRecord const& from)
    {
        return Access(StoredCallable<Pointer>::load(from.getter, from.keptGetter), releaseRoutine<T, G>);
    }
};

/// The same for a setter.
template <class T, class S>
struct DescribedSetter {
    using Pointer = typename SetterTraits<T, S>::Pointer;
    using Access = typename SetterTraits<T, S>::Setter;
    static constexpr bool needsObject = SetterTraits<T, S>::needsObject;

    static void keep(S const& setter, PropertyRecord& record)
    {
        auto const stored = static_cast<Pointer>(setter);
        record.setter = StoredCallable<Pointer>::target(stored);
        record.keptSetter = StoredCallable<Pointer>::kept(stored);
    }
    static Access make(PropertyRecord const& from)
    {
        return Access(StoredCallable<Pointer>::load(from.setter, from.keptSetter));
    }
};

template <class T>
struct DescribedGetter<T, NoAccess> {
    using Access = NoAccess;
    static constexpr bool needsObject = false;

    static void keep(NoAccess, PropertyRecord&) {}
    static Access make(PropertyRecord const&) { return {}; }
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
            from.name, [&] { return Reading::make(from); }, [&] { return Writing::make(from); }, from.attributes);
    };
    Reading::keep(getter, record);
    Writing::keep(setter, record);
    record.text = text.text;
    record.needsObject = Reading::needsObject || Writing::needsObject;
    return record;
}

} // namespace orbis::factory::detail
