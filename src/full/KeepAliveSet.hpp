#pragma once

#include "orbis/factory/ownership/BindingRegistry.hpp"
#include "orbis/factory/ownership/FooRegistry.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"
#include "orbis/factory/ownership/SharingType.hpp"
#include "orbis/factory/ownership/Wrappable.hpp"

#include "basic/HostDependents.hpp"

namespace orbis::factory::full {

/// The shared objects of one kind that the current virtual machine keeps alive, each once. `Set` is a hashed set of
/// owning pointers, which compares pointer values.
template <class Set>
struct KeepAliveSet {
    using Pointer = typename Set::value_type;

    static void keep(Pointer const& object)
    {
        if (object)
            basic::HvmScoped<KeepAliveSet>::get().objects.insert(object);
    }

    /// The caller's pointer keeps the object alive here: its destructor may call back while the set is being changed.
    static void drop(Pointer const& object)
    {
        auto* const set = basic::HvmScoped<KeepAliveSet>::find();
        if (object && set)
            set->objects.erase(object);
    }

    /// See `detail::releaseHostKept...`.
    static void dropForHost(COSInterface const* host, void* bound)
    {
        auto* const set = basic::HvmScoped<KeepAliveSet>::find();
        if (!set || set->objects.empty())
            return;
        // A non-owning pointer for the look-up (aliasing constructor). `Wrappable` is the first base, so the addresses
        // are equal.
        auto const kept = set->objects.find(Pointer(Pointer(), static_cast<typename Pointer::element_type*>(bound)));
        if (kept == set->objects.end())
            return;
        COSInterface const* const holder = basic::BindingRegistry::find(bound);
        auto const& dependents = basic::registry().dependents;
        if (host && holder && holder != host && !(dependents && dependents->shares.has(host)))
            return; // kept for a new object at this address
        // Copied, because native code that is called may change the set.
        Pointer const object = *kept; // NOLINT(performance-unnecessary-copy-initialization)
        SharingType const type = object->getSharingType();
        if (type == SharingType::HostKept || type == SharingType::HostKeptAlone)
            drop(object);
    }

    /// Returns an object that is kept for a host object and bound to none, or null.
    static Wrappable const* findOrphaned()
    {
        auto const* const set = basic::HvmScoped<KeepAliveSet>::find();
        if (!set)
            return nullptr;
        for (Pointer const& object : set->objects) {
            Wrappable const* const bound = object.get();
            if (object->getSharingType() != SharingType::Shared && !basic::BindingRegistry::contains(bound))
                return bound;
        }
        return nullptr;
    }

    Set objects;
};

} // namespace orbis::factory::full
