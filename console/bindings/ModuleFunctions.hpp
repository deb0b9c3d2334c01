#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Binds `modules`, `loadmodule`, `unloadmodule` and `withvm`.
void bindModuleFunctions(lua_State* L);

} // namespace velmara::console
