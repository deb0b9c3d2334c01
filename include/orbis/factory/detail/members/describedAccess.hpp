#pragma once

#include "orbis/factory/detail/members/PropertyRecord.hpp"
#include "orbis/factory/detail/members/releaseRoutine.hpp"
#include "orbis/factory/detail/members/setterTraits.hpp"

namespace orbis::factory::detail {

/// Placeholder for a missing getter or setter.
struct NoAccess {};

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

/// The pointer in a record, fetched when it is needed.
template <class Pointer>
struct StoredPointer {
    impl::Callable const& callable;

    operator Pointer() const { return callable.as<Pointer>(); }
};

/// A getter of `T`, as its record stores it.
template <class T, class G>
struct DescribedGetter {
    using Reader = typename GetterTraits<T, G>::Reader;
    using Pointer = typename Reader::Pointer;

    using Stored = StoredCallable<typename GetterTraits<T, G>::Pointer>;

    static auto stored(G const& getter) { return static_cast<typename GetterTraits<T, G>::Pointer>(unwrapped(getter)); }

    static COSValue getValue(impl::Callable const& getter, COSInterface* object)
    {
        return readValue<Reader>(StoredPointer<Pointer>{getter}, object);
    }

    static constexpr auto interfaces()
    {
        void (*find)(impl::Callable const&, COSInterface*, Enumeration<COSInterface*>&) = nullptr;
        if constexpr (refersToObjects<Reader>)
            find = [](impl::Callable const& getter, COSInterface* object, Enumeration<COSInterface*>& found) {
                findInterfaces<Reader>(getter.as<Pointer>(), object, found);
            };
        return find;
    }

    static constexpr GetterForm routines{&getValue, interfaces(), &dataTypeText<typename Reader::Value>,
                                         releaseRoutine<T, G>, GetterTraits<T, G>::needsObject};
    static constexpr GetterForm const* form = &routines;
};

/// The same for a setter.
template <class T, class S>
struct DescribedSetter {
    using Writer = typename SetterTraits<T, S>::Writer;
    using Pointer = typename Writer::Pointer;

    using Stored = StoredCallable<typename SetterTraits<T, S>::Pointer>;

    static auto stored(S const& setter) { return static_cast<typename SetterTraits<T, S>::Pointer>(setter); }

    static void setValue(impl::Callable const& setter, COSInterface* object, COSValue value)
    {
        Writer::write(StoredPointer<Pointer>{setter}, object, value);
    }

    static constexpr SetterForm routines{&setValue, &dataTypeText<typename Writer::Value>, Writer::needsObject};
    static constexpr SetterForm const* form = &routines;
};

template <class T>
struct DescribedGetter<T, NoAccess> {
    using Stored = StoredCallable<void*>;

    static void* stored(NoAccess) { return nullptr; }
    static constexpr GetterForm const* form = nullptr;
};

template <class T>
struct DescribedSetter<T, NoAccess> {
    using Stored = StoredCallable<void*>;

    static void* stored(NoAccess) { return nullptr; }
    static constexpr SetterForm const* form = nullptr;
};

} // namespace orbis::factory::detail
