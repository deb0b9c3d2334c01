#pragma once

#include "lua/LuaApi.hpp"

#include <string>

namespace velmara::console {

/// The message handler of script calls: turns the error value into the text to show, "identifier: text" and where
/// in the script.
int reportError(lua_State* L);

/// The text to show for the error value at `index` of an error without a running script: of `load`, of memory.
std::string describeError(lua_State* L, int index, int status);

} // namespace velmara::console
