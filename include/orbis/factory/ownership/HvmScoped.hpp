#pragma once

#include "libkwfoundation_usm/Detail.hpp"

#include <cstdint>
#include <memory>
#include <typeinfo>

namespace orbis::factory::basic {

/// The one `T` of the current virtual machine, created on first use and deleted with that machine, after its host
/// objects. Use it for what would otherwise be global, such as owners of native objects that scripts use. Do not share
/// it across modules: each may have its own. Threading: on the thread of the virtual machine.
template <class T>
class HvmScoped {
    using Storage = foundation::usm::Detail<foundation::usm::scope::Hvm>;

public:
    /// Throws "VELMARA:hvm:noVirtualMachine" when no virtual machine is current.
    static T& get()
    {
        if (auto* const stored = Storage::find(id_, typeid(T))) [[likely]]
            return *static_cast<T*>(stored->get());
        return make();
    }

    /// The same, but returns null when it has not been created or no virtual machine is current.
    static T* find()
    {
        auto* const stored = Storage::find(id_, typeid(T));
        return stored ? static_cast<T*>(stored->get()) : nullptr;
    }

private:
    [[gnu::noinline]] static T& make()
    {
        Storage::Holder holder(new T, [](void* object) { delete static_cast<T*>(object); });
        return *static_cast<T*>(Storage::findOrInsert(id_, typeid(T), std::move(holder)).get());
    }

    /// Assigned once per process, when the module is loaded.
    inline static std::uint64_t const id_ = Storage::getNextID(typeid(T));
};

} // namespace orbis::factory::basic
