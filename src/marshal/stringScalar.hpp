#pragma once

#include "libhv/hvArray.hpp"
#include "libkwi18n/libkwi18n.hpp"

namespace orbis::factory {

/// Returns the text of a host string scalar, including embedded zeros. Throws "VELMARA:class:RequireString" if `array`
/// is none, and "VELMARA:string:MissingNotSupported" if its element is missing.
fl::ustring readStringScalar(hvArray const* array);

/// Returns a new character array of that text, up to its first zero; owned by the caller.
hvArray* stringScalarAsCharacters(hvArray const* array);

/// Throws "VELMARA:class:RequireString".
[[noreturn]] void errorRequireString();

} // namespace orbis::factory
