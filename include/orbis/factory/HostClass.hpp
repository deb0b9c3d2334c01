#pragma once

namespace orbis::factory {

/// Tells under which name a native class is published. Specialise it for each, beside the native class:
///
///     template <>
///     struct orbis::factory::HostClass<Adder> {
///         static constexpr char const* name = "orbis_factory.Adder";
///     };
///
/// Optional members:
///  - `using Policy`: how pointers to the class cross, `VelmaraManagedNoInheritancePolicy` unless told otherwise;
///  - `using Root`: the base class as which its objects are bound, the class itself unless told otherwise.
template <class T>
struct HostClass;

/// True for a class with a host name.
template <class T>
concept PublishedClass = requires { HostClass<T>::name; };

namespace detail {

template <class T>
struct RootOf {
    using Type = T;
};

template <class T>
    requires requires { typename HostClass<T>::Root; }
struct RootOf<T> {
    using Type = typename HostClass<T>::Root;
};

} // namespace detail

/// The class as which objects of `T` are bound.
template <PublishedClass T>
using RootClass = typename detail::RootOf<T>::Type;

} // namespace orbis::factory
