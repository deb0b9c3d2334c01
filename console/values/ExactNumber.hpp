#pragma once

#include <bit>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>

namespace velmara::console {

/// The number as a `T`, or nothing when it does not fit: integers, and whole numbers as `double`, must be exact;
/// `float` rounds, and only what would become infinite does not fit. These are the host's rules for the inputs of
/// calls.
template <class T>
std::optional<T> exactly(std::integral auto number)
{
    if constexpr (std::same_as<T, bool>) {
        return number == 0 || number == 1 ? std::optional(number != 0) : std::nullopt;
    } else if constexpr (std::integral<T>) {
        return std::in_range<T>(number) ? std::optional(static_cast<T>(number)) : std::nullopt;
    } else if constexpr (std::same_as<T, float>) {
        return static_cast<float>(number);
    } else {
        auto magnitude = static_cast<std::uint64_t>(number);
        if (std::cmp_less(number, 0))
            magnitude = 0 - magnitude;
        auto const digits =
            magnitude == 0 ? 0 : static_cast<int>(std::bit_width(magnitude >> std::countr_zero(magnitude)));
        return digits <= std::numeric_limits<T>::digits ? std::optional(static_cast<T>(number)) : std::nullopt;
    }
}

template <class T>
std::optional<T> exactly(double number)
{
    if constexpr (std::same_as<T, bool>) {
        return number == 0 || number == 1 ? std::optional(number != 0) : std::nullopt;
    } else if constexpr (std::integral<T>) {
        // Both bounds are powers of two, so they are exact; a NaN compares false.
        constexpr auto lowest = static_cast<double>(std::numeric_limits<T>::min());
        constexpr double beyond = 2.0 * static_cast<double>(std::uint64_t(1) << (std::numeric_limits<T>::digits - 1));
        bool const fits = number >= lowest && number < beyond && std::trunc(number) == number;
        return fits ? std::optional(static_cast<T>(number)) : std::nullopt;
    } else {
        auto const rounded = static_cast<T>(number);
        return std::isfinite(rounded) || !std::isfinite(number) ? std::optional(rounded) : std::nullopt;
    }
}

/// True for the integers that every double between zero and them is exact for.
constexpr bool isExactDouble(std::int64_t value)
{
    constexpr std::int64_t limit = std::int64_t{1} << 53;
    return -limit <= value && value <= limit;
}

} // namespace velmara::console
