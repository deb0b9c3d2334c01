#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Makes `array`, `asarray`, `tolua`, `size`, `null` and `missing` globals.
void bindArrayFunctions(lua_State* L);

} // namespace velmara::console
