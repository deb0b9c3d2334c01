#pragma once

#include "velmara/Error.hpp"

#include <string>

namespace velmara {

/// Inside a handler: what is being handled as a `velmara::Error`. An exception with a message identity keeps it; a
/// shortage of memory is `Error::outOfMemory` wherever it arises; others become "VELMARA:native:exception" with their
/// text, and what is no exception at all "VELMARA:native:unknown".
Error currentError();

/// Inside a handler: throws that error.
[[noreturn]] void rethrowAsError();

/// Inside a handler: passes on a shortage of memory, which is no fault of what it came from.
void rethrowIfOutOfMemory();

/// Inside a handler: the text of what is being handled, without its identifier.
std::string currentErrorText();

/// Inside a handler: what the exception says of itself, for as long as it is handled. Needs no memory.
char const* currentExceptionWhat() noexcept;

} // namespace velmara
