#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Binds `help`, `methods` and `properties`, which print.
void bindHelpFunctions(lua_State* L);

} // namespace velmara::console
