#pragma once

namespace orbis::factory {

namespace detail {

template <class... A>
struct Overload {
    template <class R>
    constexpr auto operator()(R (*function)(A...)) const
    {
        return function;
    }

    template <class R, class C>
    constexpr auto operator()(R (C::*function)(A...)) const
    {
        return function;
    }

    template <class R, class C>
    constexpr auto operator()(R (C::*function)(A...) const) const
    {
        return function;
    }
};

} // namespace detail

/// Selects one of several overloaded functions by its parameter types: `overload<int, int>(&Adder::getSum)`.
template <class... A>
inline constexpr detail::Overload<A...> overload{};

} // namespace orbis::factory
