#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Binds `array`, `asarray`, `tolua`, `size`, `null` and `missing`, and gives host arrays their operators.
void bindArrayFunctions(lua_State* L);

} // namespace velmara::console
