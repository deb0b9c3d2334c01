#pragma once

#include "orbis/factory/basic/BindingRegistry.hpp"
#include "orbis/factory/basic/HvmScoped.hpp"
#include "orbis/factory/full/SharingType.hpp"
#include "orbis/factory/full/Wrappable.hpp"

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
