#pragma once

#include <type_traits>

namespace orbis::factory {

/// One enumerator: its name in scripts, and its native value.
template <class E>
struct Enumerator {
    char const* name; ///< a literal
    E value;          ///< unique, but for further names of the same
};

/// Gives the name under which a native enumeration is published, and the names of its enumerators. Specialise it for
/// each enumeration, beside the enumeration:
///
///     template <>
///     struct orbis::factory::HostEnumeration<Color> {
///         static constexpr char const* name = "orbis_factory.Color";
///         static constexpr Enumerator<Color> enumerators[] = {{"Red", Color::Red}, {"Green", Color::Green}};
///     };
///
/// A value with two names reaches scripts under the first.
///
/// Optional member: `static constexpr bool isVelmaraImplemented = true` for an enumeration whose host class is written
/// in the host language. Its enumerators are matched by name; their numbers in the host are ignored. Every other
/// enumeration is published with an `EnumerationClassInfo`.
template <class E>
struct HostEnumeration;

/// Satisfied by enumerations with a host name and enumerators.
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
