#pragma once

#include "arrays/Array.hpp"

#include "velmara/ArrayPtr.hpp"

#include <string>

namespace velmara {

/// A new array of the class `target`, a numeric or logical one, with the sizes of `input` and its elements, each
/// converted by the rules of `convertNumber`; null when one of them does not rank. An array without elements
/// fits when its class could.
ArrayPtr convertElements(hvClassID target, Array const& input);

/// How messages name an element: "element 2 (counted from 0): "
std::string elementPlace(std::size_t index);

/// Why the array does not fit: "element 2 (counted from 0): 2.5 is no whole number".
std::string elementsMismatchReason(hvClassID target, Array const& input);

} // namespace velmara
