#pragma once

#include "orbis/factory/base/refusals.hpp" // first: see there

namespace orbis::factory {

namespace detail {

/// Of a member that has both, the one that is const is the worse match: `const volatile` is further from this object.
template <class... A>
struct Overload {
    template <class R, bool IsNoexcept>
    constexpr auto operator()(R (*function)(A...) noexcept(IsNoexcept)) const
    {
        return function;
    }

    template <class R, class C, bool IsNoexcept>
    constexpr auto operator()(R (C::*function)(A...) noexcept(IsNoexcept)) const
    {
        return function;
    }

    template <class R, class C, bool IsNoexcept>
    constexpr auto operator()(R (C::*function)(A...) & noexcept(IsNoexcept)) const
    {
        return function;
    }

    template <class R, class C, bool IsNoexcept>
    constexpr auto operator()(R (C::*function)(A...) const noexcept(IsNoexcept)) const volatile
    {
        return function;
    }

    template <class R, class C, bool IsNoexcept>
    constexpr auto operator()(R (C::*function)(A...) const& noexcept(IsNoexcept)) const volatile
    {
        return function;
    }

    /// Chosen for a function without such an overload.
    template <class None = void>
    constexpr auto operator()(...) const volatile
    {
        static_assert(isNothing<None>(), "The function has no overload with these parameter types: name those of one "
                                         "as they are declared, with const and &.");
    }
};

template <class... A>
struct ConstOverload {
    template <class R, class C, bool IsNoexcept>
    constexpr auto operator()(R (C::*function)(A...) const noexcept(IsNoexcept)) const
    {
        return function;
    }

    template <class R, class C, bool IsNoexcept>
    constexpr auto operator()(R (C::*function)(A...) const& noexcept(IsNoexcept)) const
    {
        return function;
    }

    template <class None = void>
    constexpr auto operator()(...) const volatile
    {
        static_assert(isNothing<None>(), "The function has no const overload with these parameter types: name those of "
                                         "one as they are declared, with const and &.");
    }
};

} // namespace detail

/// Selects one of several overloaded functions by its parameter types: `overload<int, int>(&Adder::getSum)`. Of two
/// that differ in `const` only it selects the one that is not, as a call on an object of a script would.
template <class... A>
inline constexpr detail::Overload<A...> overload{};

/// Selects the const member function with these parameter types: `constOverload<>(&Shape::center)`.
template <class... A>
inline constexpr detail::ConstOverload<A...> constOverload{};

} // namespace orbis::factory
