#pragma once

#include "libkwfoundation_usm/Detail.hpp"

#include <cstdint>
#include <memory>
#include <typeinfo>

namespace orbis::factory {

/// A marker in a virtual machine's storage while the module that publishes `Package` is initialised in it.
template <class Package>
class PerHVMInitialization {
    using Storage = foundation::usm::Detail<foundation::usm::scope::Hvm>;

public:
    /// Returns false when it was already set.
    static bool set()
    {
        if (isSet())
            return false;
        Storage::insert(id(), typeid(PerHVMInitialization), Storage::Holder(new PerHVMInitialization, [](void* object) {
                            delete static_cast<PerHVMInitialization*>(object);
                        }));
        return true;
    }

    static bool isSet() { return Storage::find(id(), typeid(PerHVMInitialization)) != nullptr; }

    /// Returns false when it was not set.
    static bool clear() { return Storage::erase(id(), typeid(PerHVMInitialization)); }

private:
    static std::uint64_t id()
    {
        static std::uint64_t const value = Storage::getNextID(typeid(PerHVMInitialization));
        return value;
    }
};

} // namespace orbis::factory
