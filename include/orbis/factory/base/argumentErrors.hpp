#pragma once

#include "orbis/factory/base/export.hpp"

#include <cstddef>
#include <string>

namespace orbis::factory {

/// Errors of arguments that should be strings. Each function throws the identity of errorIdentities.hpp that it is
/// named after.
[[noreturn]] ORBIS_FACTORY_API void errorMustBeCellArray();

/// `index` is the zero-based position of the cell.
[[noreturn]] ORBIS_FACTORY_API void errorMustBeString(std::size_t index);

/// `text` is in UTF-8.
[[noreturn]] ORBIS_FACTORY_API void errorNoDuplicates(std::string const& text);

} // namespace orbis::factory
