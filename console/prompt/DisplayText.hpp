#pragma once

#include "lua/LuaApi.hpp"

#include <string>

namespace velmara::console {

/// The text that the prompt shows for a value: that of `tostring`, or the content of a table without a metatable.
/// `depth` is how many tables it is nested in.
std::string displayText(lua_State* L, int index, int depth = 0);

} // namespace velmara::console
