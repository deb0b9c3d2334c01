#pragma once

#include "system/Fit.hpp"
#include "values/Array.hpp"

#include "orbis/COSValue.hpp"

#include <string>

namespace velmara {

/// Reads a 1-by-1 array as a native scalar of the class `target`, a numeric or logical one. Values are never cut:
/// - integers take numbers of any class that are whole and in range;
/// - double takes every number that it can represent exactly;
/// - single takes whole numbers that it can represent exactly, and rounds others to the nearest, unless they lie
///   outside its range (larger than its largest, or not zero and rounded to zero); infinities and NaN pass;
/// - logical takes logicals, and the numbers 0 and 1. A logical is no number.
/// `out` is written only when the array fits.
Fit convertScalar(hvClassID target, Array const& input, orbis::COSValue& out);

/// Why `convertScalar` refuses the array: "2.5 is no whole number".
std::string explainScalarRefusal(hvClassID target, Array const& input);

/// A new 1-by-1 array of a value that holds a scalar.
Array* createScalar(orbis::COSValue const& value);

} // namespace velmara
