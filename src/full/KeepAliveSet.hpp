#pragma once

#include "orbis/factory/basic/BindingRegistry.hpp"
#include "orbis/factory/basic/HvmScoped.hpp"
#include "orbis/factory/basic/registry.hpp"
#include "orbis/factory/full/SharingType.hpp"
#include "orbis/factory/full/Wrappable.hpp"

#include "basic/HostDependents.hpp"

namespace orbis::factory::full {

/// The shared objects of one kind that the current virtual machine keeps alive, each once. `Set` is a hashed set of
/// owning pointers, by the pointers' values.
template <class Set>
struct KeepAliveSet {
    using Pointer = typename Set::value_type;

    static void keep(Pointer const& object)
    {
        if (object)
            basic::HvmScoped<KeepAliveSet>::get().objects.insert(object);
    }

    /// The caller's own pointer makes sure that no object ends inside the set, which its destructor may come back to.
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
        // Owns nothing, and is only compared. The address of the first base is the object's own.
        auto const kept = set->objects.find(Pointer(Pointer(), static_cast<typename Pointer::element_type*>(bound)));
        if (kept == set->objects.end())
            return;
        COSInterface const* const holder = basic::BindingRegistry::find(bound);
        auto const& dependents = basic::registry().dependents;
        if (host && holder && holder != host && !(dependents && dependents->shares.has(host)))
            return; // it is a new object at the address
        // Held, as native code that is asked may change the set.
        Pointer const object = *kept; // NOLINT(performance-unnecessary-copy-initialization)
        SharingType const type = object->getSharingType();
        if (type == SharingType::HostKept || type == SharingType::HostKeptAlone)
            drop(object);
    }

    /// An object that is kept for a host object and is bound to none; null when there is no such object.
    static Wrappable const* findForsaken()
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
