#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Pushes the table of the methods of host arrays, by name.
void pushArrayMethods(lua_State* L);

/// Replaces the name on top of the stack by the method. Throws an `Error` that names similar ones when there is none.
void pushArrayMethod(lua_State* L);

} // namespace velmara::console
