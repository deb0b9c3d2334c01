#pragma once

#include "orbis/factory/ownership/Wrappable.hpp"

#include <concepts>

namespace orbis::factory {

/// Gives the name under which a native class is published. Specialise it for each class, beside the class:
///
///     template <>
///     struct orbis::factory::HostClass<Adder> {
///         static constexpr char const* name = "orbis_factory.Adder";
///     };
///
/// Optional members:
///  - `using Root`: the topmost class of the class's hierarchy, as which all its objects are bound. It must be
///    polymorphic and name itself. Classes derived from `full::Wrappable` are bound as that, and need no `Root`;
///  - `using Policy`: how pointers to the class are marshaled, if not as `MarshalingPolicy` selects; `ValuePolicy` for
///    a value class.
template <class T>
struct HostClass;

class ValuePolicy;

/// Satisfied by classes with a host name.
template <class T>
concept PublishedClass = requires { HostClass<T>::name; };

/// Satisfied by value classes: their objects live inside host objects and are marshaled as copies.
template <class T>
concept ValueClass = PublishedClass<T> && std::same_as<typename HostClass<T>::Policy, ValuePolicy>;

namespace detail {

template <class T>
struct RootOf {
    using Type = T;
};

template <class T>
    requires(!std::derived_from<T, full::Wrappable>) && requires { typename HostClass<T>::Root; }
struct RootOf<T> {
    using Type = typename HostClass<T>::Root;
};

template <std::derived_from<full::Wrappable> T>
struct RootOf<T> {
    using Type = full::Wrappable;
};

} // namespace detail

/// The class as which objects of `T` are bound. `T` must be complete.
template <class T>
using RootClass = typename detail::RootOf<T>::Type;

} // namespace orbis::factory
