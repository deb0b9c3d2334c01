#pragma once

#include <string>

namespace velmara {

/// Inside a handler: throws what is being handled as a `velmara::Error`. An exception with a message identity
/// keeps it; others become "VELMARA:native:exception" with their text, and what is no exception at all
/// "VELMARA:native:unknown".
[[noreturn]] void rethrowAsError();

/// Inside a handler: what is being handled in one text, with its identifier.
std::string describeCurrentException();

/// Inside a handler: the text alone.
std::string textOfCurrentException();

} // namespace velmara
