#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"

namespace orbis::factory::detail {

/// Throws "orbis_factory:orbis_factory:null_input" for an input, or a value to be written, that must be an object of
/// the class and has no native object. A type whose policy calls this says so with `refusesNull`, so that the error of
/// a member can name the input.
[[noreturn]] ORBIS_FACTORY_API void throwNullInput(hvArray_tag const* input, char const* className);

} // namespace orbis::factory::detail
