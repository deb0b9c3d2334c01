#pragma once

#include "arrays/Array.hpp"

#include <string>

namespace velmara {

class Class;

/// Why an input means no enumerator, and no vector of them: "needs one of Red, Green, not 'Purple'".
std::string enumeratorMismatchReason(Class const& enumeration, Array const& input);
std::string enumeratorsMismatchReason(Class const& enumeration, Array const& input);

} // namespace velmara
