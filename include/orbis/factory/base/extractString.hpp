#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"
#include "libkwi18n/libkwi18n.hpp"

#include <vector>

namespace orbis::factory {

/// Returns the text of a host string scalar or a character array, including embedded zeros. `array` is not null. Throws
/// the host's errors for a missing string and for other arrays.
ORBIS_FACTORY_API fl::ustring extractString(hvArray* array);

/// True for a host string array; false for null.
ORBIS_FACTORY_API bool isStringVector(hvArray* array);

/// Returns the elements of a host string array in column order. Missing elements are omitted, so the result may be
/// shorter than the array.
ORBIS_FACTORY_API std::vector<fl::ustring> extractFromStringVector(hvArray* array);

} // namespace orbis::factory
