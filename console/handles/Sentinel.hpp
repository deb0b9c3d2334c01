#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// The values that mean nothing where `nil` cannot, as elements of tables and arrays: `null` is an empty cell or no
/// object, `missing` an element of a string array that has no text.
void pushNull(lua_State* L);
void pushMissing(lua_State* L);
bool isNull(lua_State* L, int index);
bool isMissing(lua_State* L, int index);

} // namespace velmara::console
