#pragma once

#include "orbis/factory/ownership/Wrappable.hpp"

#include <concepts>

namespace orbis::factory {

/// Tells under which name a native class is published. Specialise it for each, beside the native class:
///
///     template <>
///     struct orbis::factory::HostClass<Adder> {
///         static constexpr char const* name = "orbis_factory.Adder";
///     };
///
/// Optional members:
///  - `using Root`: for the classes of a hierarchy, the topmost one, which must be polymorphic and names itself: all
///    objects are bound as it. Classes derived from `full::Wrappable` are bound as that, and need no `Root`;
///  - `using Policy`: how pointers to the class cross, when not as `MarshalingPolicy` says; `ValuePolicy` for a value
///    class.
template <class T>
struct HostClass;

class ValuePolicy;

/// True for a class with a host name.
template <class T>
concept PublishedClass = requires { HostClass<T>::name; };

/// True for a class whose objects live inside their host objects and cross as copies.
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
