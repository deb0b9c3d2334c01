#pragma once

#include "libhv/hvArray.hpp"

#include <cmath>
#include <compare>
#include <concepts>
#include <cstdint>
#include <limits>
#include <utility>

namespace velmara::console {

/// How an integer and a double compare, without rounding either.
template <std::integral I>
std::partial_ordering orderExactly(I whole, double number)
{
    constexpr double beyond = 2.0 * static_cast<double>(std::uint64_t(1) << (std::numeric_limits<I>::digits - 1));
    if (std::isnan(number))
        return std::partial_ordering::unordered;
    if (number >= beyond)
        return std::partial_ordering::less;
    if (number < static_cast<double>(std::numeric_limits<I>::min()))
        return std::partial_ordering::greater;
    double const truncated = std::trunc(number);
    auto const other = static_cast<I>(truncated);
    return whole == other ? truncated <=> number : std::partial_ordering(whole <=> other);
}

/// a < b and a == b for numbers of any two types, exactly; false with a NaN.

template <class A, class B>
bool isLessThan(A a, B b)
{
    if constexpr (std::same_as<A, B>)
        return a < b;
    else if constexpr (std::integral<A> && std::integral<B>)
        return std::cmp_less(a, b);
    else if constexpr (std::integral<A>)
        return std::is_lt(orderExactly(a, b));
    else
        return std::is_gt(orderExactly(b, a));
}

template <class A, class B>
bool isEqualTo(A a, B b)
{
    if constexpr (std::same_as<A, B>)
        return a == b;
    else if constexpr (std::integral<A> && std::integral<B>)
        return std::cmp_equal(a, b);
    else if constexpr (std::integral<A>)
        return std::is_eq(orderExactly(a, b));
    else
        return std::is_eq(orderExactly(b, a));
}

/// Calls `visit` with a zero of the type in which numbers of a class are compared with those of others: double, or one
/// of 64 bits. It holds all of them.
template <class Visit>
void visitComparedType(hvClassID classID, Visit const& visit)
{
    if (classID == hvINT64_CLASS)
        visit(std::int64_t());
    else if (classID == hvUINT64_CLASS)
        visit(std::uint64_t());
    else
        visit(double());
}

} // namespace velmara::console
