#pragma once

#include "orbis/COSValue.hpp"

#include <bit>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <utility>

namespace orbis::host_extensions {

/// True when a `double` holds the whole number exactly.
constexpr bool isExactDouble(std::integral auto number)
{
    auto magnitude = static_cast<std::uint64_t>(number);
    if (std::cmp_less(+number, 0))
        magnitude = 0 - magnitude;
    return magnitude == 0 ||
           std::bit_width(magnitude >> std::countr_zero(magnitude)) <= std::numeric_limits<double>::digits;
}

/// A number as one of another native type; nothing when it does not fit. Numbers are never cut:
/// - integers take numbers that are whole and in range;
/// - double takes every number that it holds exactly;
/// - single rounds every number to the nearest that it has, but those that would become infinite; infinities and NaN
///   pass;
/// - logical takes 0 and 1.
template <COSScalar T>
constexpr std::optional<T> convertNumber(std::integral auto number)
{
    bool fits = true;
    if constexpr (std::same_as<T, bool>)
        fits = number == 0 || number == 1;
    else if constexpr (std::integral<T>)
        fits = std::in_range<T>(+number);
    else if constexpr (std::same_as<T, double>)
        fits = isExactDouble(number);
    return fits ? std::optional(static_cast<T>(number)) : std::nullopt;
}

/// The same of a number with a fraction, which only types with one take.
template <COSScalar T>
std::optional<T> convertNumber(std::floating_point auto given)
{
    auto const number = static_cast<double>(given);
    if constexpr (std::integral<T> && !std::same_as<T, bool>) {
        // Both bounds are powers of two, so they are exact; a NaN compares false.
        constexpr auto lowest = static_cast<double>(std::numeric_limits<T>::min());
        constexpr double beyond = 2.0 * static_cast<double>(std::uint64_t(1) << (std::numeric_limits<T>::digits - 1));
        if (!(number >= lowest && number < beyond)) // NOLINT(readability-simplify-boolean-expr): NaN
            return std::nullopt;
    }
    auto const converted = static_cast<T>(number);
    bool const fits = std::floating_point<T> ? std::isfinite(static_cast<double>(converted)) || !std::isfinite(number)
                                             : static_cast<double>(converted) == number;
    return fits ? std::optional(converted) : std::nullopt;
}

} // namespace orbis::host_extensions
