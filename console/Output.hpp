#pragma once

namespace velmara::console {

/// Call before any file is opened: occupies the standard streams that the process was started without, so that no file
/// gets their numbers. Printing to them fails.
void occupyStandardStreams();

/// Flushes standard output, with what native code has printed. Returns `code`; where any output was lost it says so on
/// stderr, and returns `exitOutput` instead of success.
int finishOutput(int code);

} // namespace velmara::console
