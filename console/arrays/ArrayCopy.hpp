#pragma once

#include "libhv/hvArray.hpp"

namespace velmara::console {

/// Copies all elements of an array, in column order, into a new one of the same class and number of elements, whatever
/// the shape of the two. Nothing is lost: neither what is ill-formed in a text, nor the class of a cell's array.
void copyElements(hvArray_tag const* source, hvArray_tag* target);

} // namespace velmara::console
