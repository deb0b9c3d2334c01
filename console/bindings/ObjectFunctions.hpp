#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Binds the functions `class`, `delete` and `isvalid`, and the value `null`.
void bindObjectFunctions(lua_State* L);

} // namespace velmara::console
