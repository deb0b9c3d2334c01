#pragma once

#include "libhv/hvArray.hpp"

namespace velmara {

/// True when both are null, or both have the same class and sizes and equal elements: objects are equal when they
/// are the same one, numbers when they are the same bits, strings when both are missing or have the same text. Takes
/// no stack for nested cells.
bool areEqual(hvArray_tag const* first, hvArray_tag const* second);

/// The size of all elements, those of nested cells included; 0 for null. A string counts with its terminator, a missing
/// one not at all.
std::size_t byteSize(hvArray_tag const* array);

} // namespace velmara
