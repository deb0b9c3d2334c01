#pragma once

#include <bit>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <utility>

namespace velmara {

/// True when the whole number has no more significant bits than `double` holds.
inline bool isExactDouble(std::integral auto number)
{
    auto magnitude = static_cast<std::uint64_t>(number);
    if (number < 0)
        magnitude = 0 - magnitude;
    return magnitude == 0 ||
           std::bit_width(magnitude >> std::countr_zero(magnitude)) <= std::numeric_limits<double>::digits;
}

inline bool isWhole(double number)
{
    return std::isfinite(number) && std::trunc(number) == number;
}

/// A number as one of another native type, by the rules that `ScalarConverter` states; false when it does not fit.
template <class T>
bool convertNumber(std::integral auto number, T& out)
{
    if constexpr (std::same_as<T, bool>) {
        out = number != 0;
        return number == 0 || number == 1;
    } else if constexpr (std::integral<T>) {
        out = static_cast<T>(number);
        return std::in_range<T>(number);
    } else {
        out = static_cast<T>(number);
        return std::same_as<T, float> || isExactDouble(number);
    }
}

template <class T>
bool convertNumber(double number, T& out)
{
    if constexpr (std::same_as<T, double>) {
        out = number;
        return true;
    } else if constexpr (std::same_as<T, float>) {
        out = static_cast<float>(number);
        return std::isfinite(out) || !std::isfinite(number);
    } else if constexpr (std::same_as<T, bool>) {
        out = number != 0;
        return number == 0 || number == 1;
    } else {
        // Both bounds are powers of two, so they are exact; a NaN compares false.
        constexpr auto lowest = static_cast<double>(std::numeric_limits<T>::min());
        constexpr double beyond = 2.0 * static_cast<double>(std::uint64_t(1) << (std::numeric_limits<T>::digits - 1));
        if (!(number >= lowest && number < beyond)) // NOLINT(readability-simplify-boolean-expr): NaN
            return false;
        out = static_cast<T>(number);
        return static_cast<double>(out) == number;
    }
}

} // namespace velmara
