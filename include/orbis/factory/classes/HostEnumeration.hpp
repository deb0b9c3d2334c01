#pragma once

#include <type_traits>

namespace orbis::factory {

/// One enumerator: the name that scripts know it by, and its native value.
template <class E>
struct Enumerator {
    char const* name;
    E value;
};

/// Tells under which name a native enumeration is published, and what its enumerators are called. Specialise it for
/// each, beside the enumeration:
///
///     template <>
///     struct orbis::factory::HostEnumeration<Color> {
///         static constexpr char const* name = "orbis_factory.Color";
///         static constexpr Enumerator<Color> enumerators[] = {{"Red", Color::Red}, {"Green", Color::Green}};
///     };
///
/// A value that has two names is handed to scripts under the first.
///
/// Optional member: `static constexpr bool isVelmaraImplemented = true` for an enumeration whose host class is written
/// in the host language. Its enumerators are found by their names; their numbers there mean nothing here. For any other
/// enumeration a package publishes an `EnumerationClassInfo`.
template <class E>
struct HostEnumeration;

/// True for an enumeration with a host name and enumerators.
template <class E>
concept PublishedEnumeration = std::is_enum_v<E> && requires {
    HostEnumeration<E>::name;
    HostEnumeration<E>::enumerators;
};

namespace detail {

template <class E>
inline constexpr bool isVelmaraImplemented = false;

template <class E>
    requires requires { HostEnumeration<E>::isVelmaraImplemented; }
inline constexpr bool isVelmaraImplemented<E> = HostEnumeration<E>::isVelmaraImplemented;

} // namespace detail
} // namespace orbis::factory
