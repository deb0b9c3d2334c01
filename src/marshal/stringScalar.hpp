#pragma once

#include "libhv/hvArray.hpp"
#include "libkwi18n/libkwi18n.hpp"

namespace orbis::factory {

/// The text of a host string scalar, zeros in it included. Throws "VELMARA:class:RequireString" when `array` is none,
/// and "VELMARA:string:MissingNotSupported" when its element is missing.
fl::ustring readStringScalar(hvArray const* array);

/// A new character array of that text, up to its first zero.
hvArray* stringScalarAsCharacters(hvArray const* array);

/// Throws "VELMARA:class:RequireString".
[[noreturn]] void errorRequireString();

} // namespace orbis::factory
