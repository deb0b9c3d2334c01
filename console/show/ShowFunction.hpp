#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Binds `show(...)`, which prints values with what they hold, cut to the screen.
void bindShowFunction(lua_State* L);

} // namespace velmara::console
