#pragma once

#include "libhv/hvArray.hpp"

#include <cstddef>
#include <string>

/// Parts of the sentences of errors.
namespace orbis::factory {

/// An array as what was given instead of something else: "text", "a number", "double of 2-by-3".
std::string describeArray(hvArray_tag const* array);

/// "element 2 (counted from 0)"
std::string placeOfElement(std::size_t index);

} // namespace orbis::factory
