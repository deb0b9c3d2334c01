#pragma once

#include "libhv/hvArray.hpp"

namespace velmara::console {

/// Copies all elements of an array, in column order, to a new one of the same class and number of elements; the shapes
/// may differ. Exact: keeps ill-formed text and the class of a cell's array.
void copyElements(hvArray_tag const* source, hvArray_tag* target);

} // namespace velmara::console
