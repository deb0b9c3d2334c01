#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"

namespace orbis::factory::detail {

/// Throws "orbis_factory:orbis_factory:null_input" for an input, or a value that is to be written, which holds no
/// native object of the class where one is needed. Members of whose inputs that is so (`refusesNull`) name the input.
[[noreturn]] ORBIS_FACTORY_API void throwNullInput(hvArray_tag const* input, char const* className);

} // namespace orbis::factory::detail
