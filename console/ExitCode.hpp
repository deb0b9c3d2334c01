#pragma once

namespace velmara::console {

/// The exit codes of the process.
enum ExitCode : int {
    exitSuccess = 0,
    exitScriptError = 1,   ///< a script or a module failed
    exitUsage = 2,         ///< wrong options, or a script that cannot be read
    exitLeaks = 3,         ///< `--check-leaks` found something
    exitOutput = 4,        ///< what was printed could not be written
    exitInterrupted = 130, ///< Ctrl-C ended the script; the code that shells give for it
};

} // namespace velmara::console
