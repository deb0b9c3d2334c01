#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Binds `graph(x, options)`, which gives objects as a picture. When `isRestricted` it starts no program and writes no
/// file.
void bindGraphFunction(lua_State* L, bool isRestricted);

} // namespace velmara::console
