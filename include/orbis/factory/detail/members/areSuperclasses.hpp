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

/// Returns why `T` cannot have the superclass `B`, or `None`.
template <class T, class B>
consteval Refusal superclassRefusal()
{
    if constexpr (!std::derived_from<T, B> || std::is_same_v<B, T>)
        return Refusal::NotSuperclass;
    else if constexpr (PublishedClass<T> && !PublishedClass<B>)
        return Refusal::UnnamedSuperclass;
    else if constexpr (!PublishedClass<T> && !NamedType<B>)
        return Refusal::MixedSuperclass;
    else if constexpr (NamedType<T>)
        return std::is_polymorphic_v<B> || requires(B* base) { static_cast<T*>(base); } ? Refusal::None
                                                                                        : Refusal::UnfindableAsBase;
    else if constexpr (ValueClass<T> || ValueClass<B>)
        return Refusal::ValueSuperclass;
    else if constexpr (!std::is_same_v<RootClass<T>, RootClass<B>> || hasNoSubclasses<T> || hasNoSubclasses<B>)
        return Refusal::OtherRoot;
    else
        return Refusal::None;
}

} // namespace orbis::factory::detail
