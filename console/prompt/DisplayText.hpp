#pragma once

#include "lua/LuaApi.hpp"

#include <string>

namespace velmara::console {

/// How the prompt shows a value: as `print` does, but with the content of tables.
std::string displayText(lua_State* L, int index, int depth = 0);

} // namespace velmara::console
