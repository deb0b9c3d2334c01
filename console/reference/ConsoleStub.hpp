#pragma once

#include <string>

namespace velmara::console {

/// The functions and values that the console adds to Lua, and its arrays, with annotations for editors.
std::string consoleStub();

} // namespace velmara::console
