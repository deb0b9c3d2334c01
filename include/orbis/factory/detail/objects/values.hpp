#pragma once

#include <concepts>
#include <type_traits>

/// What objects of a class can do as values.
namespace orbis::factory::detail {

template <class T>
concept HasOwnEquality = requires(T const& a, T const& b) {
    {
        a.operator==(b)
    } -> std::convertible_to<bool>;
} || requires(T const& a, T const& b) {
    {
        operator==(a, b)
    } -> std::convertible_to<bool>;
};

/// Containers declare copying and comparing whatever their elements can do.
template <class T>
consteval bool elementsAreRegular()
{
    if constexpr (requires { typename T::value_type; })
        return std::is_same_v<typename T::value_type, T> || std::regular<typename T::value_type>;
    else
        return true;
}

/// Whether the class itself has `==`: none that compares what objects convert to.
template <class T>
inline constexpr bool hasEquality = [] {
    if constexpr (HasOwnEquality<T>)
        return elementsAreRegular<T>();
    else
        return false;
}();

template <class T>
concept CopyConstructible = std::is_copy_constructible_v<T> && std::is_destructible_v<T>;

} // namespace orbis::factory::detail

namespace orbis::factory {

/// Whether scripts can copy objects of the class without being told so. A class may declare a copy constructor that
/// does not compile, because it has a container of what cannot be copied; so only those are taken for values that copy
/// without being able to fail, or that can be compared. For others say `copyable()` in the description, and specialise
/// this as false for one that is no value all the same.
template <class T>
inline constexpr bool isValue =
    detail::CopyConstructible<T> &&
    (std::is_nothrow_copy_constructible_v<T> || detail::hasEquality<T>)&&detail::elementsAreRegular<T>();

} // namespace orbis::factory
