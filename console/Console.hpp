#pragma once

#include "Session.hpp"

#include <filesystem>

namespace velmara::console {

/// Prepares the session (libraries, bindings, modules; `builtIn` where it is not empty), does the command line's task
/// and returns the exit code.
int runConsole(Session& session, CommandLine const& line, std::filesystem::path const& builtIn);

} // namespace velmara::console
