#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Binds `class`, `delete`, `isvalid`, `objects` and `references`.
void bindObjectFunctions(lua_State* L);

} // namespace velmara::console
