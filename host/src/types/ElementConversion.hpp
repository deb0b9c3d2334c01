#pragma once

#include "arrays/Array.hpp"

#include "velmara/ArrayPtr.hpp"

#include <string>

namespace velmara {

/// A new array of the class `target`, a numeric or logical one, with the sizes of `input` and its elements, each
/// converted by the rules of `convertNumber`; null when one of them does not fit. An array without elements
/// fits when its class could.
ArrayPtr convertElements(hvClassID target, Array const& input);

/// Why the array is refused: "element 2 (counted from 0): 2.5 is no whole number".
std::string explainElementsRefusal(hvClassID target, Array const& input);

} // namespace velmara
