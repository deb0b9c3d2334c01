#pragma once

#include "orbis/factory/classes/HostClass.hpp"
#include "orbis/factory/detail/objects/NamedClass.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include <concepts>
#include <type_traits>

namespace orbis::factory::detail {

/// True if the class is marshaled as one without published subclasses.
template <class T>
inline constexpr bool hasNoSubclasses =
    std::is_same_v<typename MarshalingPolicy<T*>::Type, VelmaraManagedNoInheritancePolicy>;

/// Returns whether `T` can have the superclass `B`; stops compilation with a sentence otherwise.
template <class T, class B>
consteval bool isSuperclass()
{
    static_assert(std::derived_from<T, B> && !std::is_same_v<B, T>,
                  "The superclass is no public base class of the class: inherits<...>() names such ones.");
    constexpr bool areNamedAlike = PublishedClass<T> ? PublishedClass<B> : NamedType<B>;
    static_assert(areNamedAlike || !PublishedClass<T>,
                  "The superclass has no host name: specialise orbis::factory::HostClass for it, beside the class.");
    static_assert(areNamedAlike || PublishedClass<T>,
                  "The superclass has a HostClass and the class has none: publish both with Module::publish, or both "
                  "with a HostClass and a class info.");
    if constexpr (NamedType<T> && NamedType<B>)
        return std::derived_from<T, B> && !std::is_same_v<B, T>;
    else if constexpr (PublishedClass<B> && std::derived_from<T, B> && !std::is_same_v<B, T>) {
        constexpr bool areValues = ValueClass<T> || ValueClass<B>;
        static_assert(!areValues, "Value classes have no superclasses: publish classes with superclasses as handles.");
        constexpr bool areBoundAlike =
            areValues || (std::is_same_v<RootClass<T>, RootClass<B>> && !hasNoSubclasses<T> && !hasNoSubclasses<B>);
        static_assert(areBoundAlike, "The class and its superclass are not bound as one class: say `using Root = ...` "
                                     "in the HostClass of both, with the topmost class of the hierarchy, or derive "
                                     "that from full::Wrappable.");
        return areBoundAlike && !areValues;
    } else {
        return false;
    }
}

template <class T, class... B>
consteval bool areSuperclasses()
{
    return (isSuperclass<T, B>() && ...);
}

} // namespace orbis::factory::detail
