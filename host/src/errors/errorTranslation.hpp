#pragma once

#include "velmara/Error.hpp"

#include <string>

namespace velmara {

/// Inside a handler: the current exception as a `velmara::Error`. One with a message identifier keeps it; `bad_alloc`
/// is `Error::outOfMemory`; others become "VELMARA:native:exception" with their text, and what is no exception at all
/// "VELMARA:native:unknown".
Error currentError();

/// Inside a handler: throws that error.
[[noreturn]] void rethrowAsError();

/// Inside a handler: rethrows `bad_alloc`, for which the code that threw it is not to blame.
void rethrowIfOutOfMemory();

/// Inside a handler: the text of that error, without its identifier.
std::string currentErrorText();

/// Inside a handler: `what()` of the current exception, valid while it is handled. Needs no memory.
char const* currentExceptionWhat() noexcept;

} // namespace velmara
