#pragma once

#include "arrays/Array.hpp"
#include "types/ConversionRank.hpp"

#include "orbis/COSValue.hpp"

#include <cstdint>
#include <string>

namespace velmara {

/// Reads an element of an array of one class as a native scalar of another, by the rules of `convertNumber`. A logical
/// is no number: only logicals take it. `out` is written only when the element fits.
using ScalarConverter = ConversionRank (*)(void const* element, orbis::COSValue& out);

/// The converters to the class `target`, a numeric or logical one, by the class of the input.
ScalarConverter const* scalarConverters(hvClassID target);

/// An element of a numeric or logical array, as messages write it.
std::string numberText(Array const& input, std::size_t index = 0);

/// Why the array does not fit: "2.5 is no whole number".
std::string scalarMismatchReason(hvClassID target, Array const& input);

/// A new 1-by-1 array of a value that holds a scalar.
inline Array* createScalar(orbis::COSValue const& value)
{
    // Value and array both hold the scalar in the first bytes of eight.
    return Array::createScalar(value.scalarClass(), value.scalar<std::uint64_t>());
}

} // namespace velmara
