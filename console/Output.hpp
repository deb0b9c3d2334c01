#pragma once

namespace velmara::console {

/// To be called before a file is opened: where the process was started without a standard stream, no file takes its
/// place, and what is printed there fails.
void occupyStandardStreams();

/// Writes what is still to be written to standard output, of native code too. Where any output was lost, that is said
/// on stderr, and a `code` of success becomes `exitOutput`.
int finishOutput(int code);

} // namespace velmara::console
