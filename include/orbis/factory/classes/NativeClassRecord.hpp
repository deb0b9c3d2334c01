#pragma once

#include "orbis/factory/classes/HostClass.hpp"

#include <type_traits>
#include <typeinfo>

namespace orbis::factory {

/// A published native class as it is described.
struct NativeClassRecord {
    char const* hostName; ///< full dotted name; a literal
    std::type_info const* type;

    /// True when the object bound at an address is of the class; null for a class whose objects are not bound as a
    /// polymorphic one.
    bool (*isInstance)(void const* bound) = nullptr;
};

template <PublishedClass T>
NativeClassRecord nativeClassRecord()
{
    NativeClassRecord record{HostClass<T>::name, &typeid(T)};
    if constexpr (std::is_polymorphic_v<RootClass<T>>) {
        record.isInstance = [](void const* bound) {
            return dynamic_cast<T const*>(static_cast<RootClass<T> const*>(bound)) != nullptr;
        };
    }
    return record;
}

} // namespace orbis::factory
