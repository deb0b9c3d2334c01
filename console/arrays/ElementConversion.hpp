#pragma once

#include "libhv/hvArray.hpp"

#include <cstddef>

namespace velmara::console {

/// Converts the elements of a numeric or logical array to those of another of as many elements, in column order, up to
/// the first that does not fit its class. Returns how many did.
std::size_t convertElements(hvArray_tag const& source, hvArray_tag* target);

} // namespace velmara::console
