#pragma once

#include "libkwfoundation_usm/Detail.hpp"

#include <cstdint>
#include <memory>
#include <typeinfo>

namespace orbis::factory::basic {

/// The one `T` of the current virtual machine, kept in its storage and made on first use.
/// Threading: on the thread of the virtual machine; the id alone is made for all threads.
template <class T>
class HvmScoped {
    using Storage = foundation::usm::Detail<foundation::usm::scope::Hvm>;

public:
    static T& get()
    {
        if (auto* const stored = Storage::find(id(), typeid(T))) [[likely]]
            return *static_cast<T*>(stored->get());
        Storage::Holder holder(new T, [](void* object) { delete static_cast<T*>(object); });
        return *static_cast<T*>(Storage::findOrInsert(id(), typeid(T), std::move(holder)).get());
    }

private:
    static std::uint64_t id()
    {
        static std::uint64_t const value = Storage::getNextID(typeid(T));
        return value;
    }
};

} // namespace orbis::factory::basic
