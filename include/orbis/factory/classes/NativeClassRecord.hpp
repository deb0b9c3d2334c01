#pragma once

#include "orbis/factory/classes/HostClass.hpp"

#include <type_traits>
#include <typeinfo>

namespace orbis::factory {

/// The description of a published native class, without its type.
struct NativeClassRecord {
    char const* hostName;       ///< full dotted name; a literal
    std::type_info const* type; ///< of the class itself

    /// Returns whether the object bound at an address is of the class. Null when the class is not bound as a
    /// polymorphic one.
    bool (*isInstance)(void const* bound) = nullptr;
};

/// Returns the description of `T`.
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
