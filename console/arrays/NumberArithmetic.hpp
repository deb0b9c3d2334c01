#pragma once

#include "host_extensions/convertNumber.hpp"

#include <cmath>
#include <concepts>
#include <cstdint>

namespace velmara::console {

/// The arithmetic operators on two numbers of one type. For floating types, `of` is the operator of Lua, after IEEE.
/// For integers, `into` stores the exact result, rounded to the nearest, halves away from zero; it returns false when
/// that does not fit, and when there is none, as for a division by zero.

struct Plus {
    static constexpr char const* symbol = "+";
    static auto of(std::floating_point auto a, decltype(a) b) { return a + b; }
    template <std::integral I>
    static bool into(I a, I b, I& result)
    {
        return !__builtin_add_overflow(a, b, &result);
    }
};

struct Minus {
    static constexpr char const* symbol = "-";
    static auto of(std::floating_point auto a, decltype(a) b) { return a - b; }
    template <std::integral I>
    static bool into(I a, I b, I& result)
    {
        return !__builtin_sub_overflow(a, b, &result);
    }
};

struct Times {
    static constexpr char const* symbol = "*";
    static auto of(std::floating_point auto a, decltype(a) b) { return a * b; }
    template <std::integral I>
    static bool into(I a, I b, I& result)
    {
        return !__builtin_mul_overflow(a, b, &result);
    }
};

/// Negates the first number.
struct Negated {
    static constexpr char const* symbol = "-";
    static auto of(std::floating_point auto a, decltype(a) /*b*/) { return -a; }
    template <std::integral I>
    static bool into(I a, I /*b*/, I& result)
    {
        return Minus::into(I(0), a, result);
    }
};

/// Whether the quotient of two integers exists and is computed by the processor: -1 has an overflow of its own.
template <std::integral I>
bool isPlainDivisor(I b)
{
    return b != 0 && (std::unsigned_integral<I> || b != static_cast<I>(-1));
}

struct Over {
    static constexpr char const* symbol = "/";
    static auto of(std::floating_point auto a, decltype(a) b) { return a / b; }
    template <std::integral I>
    static bool into(I a, I b, I& result)
    {
        if (!isPlainDivisor(b))
            return b != 0 && Negated::into(a, b, result);
        auto const magnitude = [](I number) {
            auto const bits = static_cast<std::uint64_t>(number);
            return std::cmp_less(number, 0) ? 0 - bits : bits;
        };
        std::uint64_t const rest = magnitude(static_cast<I>(a % b));
        bool const isRoundedAway = rest >= magnitude(b) - rest;
        result = static_cast<I>(a / b + (isRoundedAway ? ((a < 0) == (b < 0) ? 1 : -1) : 0));
        return true;
    }
};

struct FloorOver {
    static constexpr char const* symbol = "//";
    static auto of(std::floating_point auto a, decltype(a) b) { return std::floor(a / b); }
    template <std::integral I>
    static bool into(I a, I b, I& result)
    {
        if (!isPlainDivisor(b))
            return b != 0 && Negated::into(a, b, result);
        result = static_cast<I>(a / b - (a % b != 0 && (a < 0) != (b < 0) ? 1 : 0));
        return true;
    }
};

/// The rest of the floor division: it has the sign of the divisor.
struct Modulo {
    static constexpr char const* symbol = "%";
    static auto of(std::floating_point auto a, decltype(a) b)
    {
        auto rest = std::fmod(a, b);
        if (rest != 0 && (rest < 0) != (b < 0))
            rest += b;
        return rest;
    }
    template <std::integral I>
    static bool into(I a, I b, I& result)
    {
        if (!isPlainDivisor(b)) {
            result = 0;
            return b != 0;
        }
        result = static_cast<I>(a % b);
        if (result != 0 && (result < 0) != (b < 0))
            result = static_cast<I>(result + b);
        return true;
    }
};

struct Power {
    static constexpr char const* symbol = "^";
    template <std::floating_point F>
    static F of(F a, F b)
    {
        return b == 2 ? a * a : std::pow(a, b);
    }
    template <std::integral I>
    static bool into(I base, I exponent, I& result)
    {
        if (exponent < 0) {
            auto const converted = orbis::host_extensions::convertNumber<I>(
                std::round(std::pow(static_cast<double>(base), static_cast<double>(exponent))));
            result = converted.value_or(0);
            return converted.has_value();
        }
        for (result = 1; exponent != 0; exponent = static_cast<I>(exponent >> 1)) {
            if ((exponent & 1) != 0 && !Times::into(result, base, result))
                return false;
            // A square that does not fit is a factor of the result, which does not fit either.
            if (exponent > 1 && !Times::into(base, base, base))
                return false;
        }
        return true;
    }
};

/// Stores the result of an operator as a number of type `R`: the type of both numbers if that is floating, else the
/// integer type of one of them; the other may be a double. Whole numbers are computed with exactly. Returns false when
/// the result does not fit.
template <class Op, class A, class B, class R>
bool compute(A a, B b, R& result)
{
    if constexpr (std::floating_point<R>) {
        result = Op::of(a, b);
        return true;
    } else if constexpr (std::same_as<A, R> && std::same_as<B, R>) {
        return Op::template into<R>(a, b, result);
    } else {
        using orbis::host_extensions::convertNumber;
        auto const wholeA = convertNumber<R>(a);
        auto const wholeB = convertNumber<R>(b);
        if (wholeA && wholeB)
            return Op::template into<R>(*wholeA, *wholeB, result);
        auto const converted = convertNumber<R>(std::round(Op::of(static_cast<double>(a), static_cast<double>(b))));
        result = converted.value_or(0);
        return converted.has_value();
    }
}

} // namespace velmara::console
