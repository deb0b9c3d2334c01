#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Binds `help`, `methods`, `properties` and `apropos`, which print, and `members`, which returns what they tell. Call
/// it once all other functions of the console are bound.
void bindHelpFunctions(lua_State* L);

} // namespace velmara::console
