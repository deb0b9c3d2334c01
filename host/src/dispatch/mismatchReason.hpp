#pragma once

#include "types/TypeReference.hpp"

#include <string>

namespace velmara {

/// Why an input does not fit a data type: "needs a number, not char".
std::string mismatchReason(TypeReference const& type, hvArray_tag* input);

} // namespace velmara
