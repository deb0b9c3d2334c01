#pragma once

namespace velmara::console {

/// What `help()` says first.
extern char const* const generalHelp;

} // namespace velmara::console
