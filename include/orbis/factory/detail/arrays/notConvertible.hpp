#pragma once

#include "orbis/factory/base/export.hpp"

#include <cstddef>
#include <string>

namespace orbis::factory::detail {

/// Throws "orbis_factory:orbis_factory:not_convertible".
[[noreturn]] ORBIS_FACTORY_API void throwNotConvertible(std::string const& reason);

/// Inside a handler: returns the reason, or the text, of the exception being handled. Rethrows exhausted memory.
ORBIS_FACTORY_API std::string reasonOfCurrentException();

/// Inside a handler: throws the same with the text of the exception being handled after that of the place. Rethrows
/// exhausted memory.
[[noreturn]] ORBIS_FACTORY_API void rethrowAt(std::string const& place);
[[noreturn]] ORBIS_FACTORY_API void rethrowAtElement(std::size_t index);

/// Inside a handler: throws the `not_convertible` error with the text of the exception being handled, for an input, so
/// that the error of a member can name it. A type whose `MarshalingPolicy` has `namesInput` calls this.
[[noreturn]] ORBIS_FACTORY_API void rethrowAtInput(std::size_t index);

} // namespace orbis::factory::detail
