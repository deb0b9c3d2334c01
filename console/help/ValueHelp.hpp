#pragma once

#include "lua/LuaApi.hpp"

#include <string>

namespace velmara::console {

/// Help on a value that has no name: what it is, and what the host gets for it.
std::string valueHelp(lua_State* L, int index);

} // namespace velmara::console
