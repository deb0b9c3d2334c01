#pragma once

#include "arrays/Array.hpp"

#include <string>

namespace velmara {

class Class;

/// Why an input is refused where one enumerator is wanted, and where a vector of them is: "needs one of Red, Green,
/// not 'Purple'".
std::string enumeratorMismatchReason(Class const& enumeration, Array const& input);
std::string enumeratorsMismatchReason(Class const& enumeration, Array const& input);

} // namespace velmara
