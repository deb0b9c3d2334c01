#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"
#include "libkwi18n/libkwi18n.hpp"

#include <vector>

namespace orbis::factory {

/// The text of a host string scalar or a character array, zeros in it included. `array` is not null. Throws the
/// host's errors for a missing string and for what is no text.
ORBIS_FACTORY_API fl::ustring extractString(hvArray* array);

/// True for a host string array; false for null.
ORBIS_FACTORY_API bool isStringVector(hvArray* array);

/// The elements of a host string array in column order. Missing ones are left out, so there may be fewer than the
/// array has.
ORBIS_FACTORY_API std::vector<fl::ustring> extractFromStringVector(hvArray* array);

} // namespace orbis::factory
