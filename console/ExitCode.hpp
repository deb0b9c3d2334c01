#pragma once

namespace velmara::console {

/// What the console tells whoever started it.
enum ExitCode : int {
    exitSuccess = 0,
    exitScriptError = 1, ///< a script or a module failed
    exitUsage = 2,       ///< wrong options, or a script that cannot be read
    exitLeaks = 3,       ///< `--check-leaks` found something
};

} // namespace velmara::console
