#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// `references(object)` as a function for Lua, to be guarded: pushes a sequence of tables with the `property` and the
/// `object` that it refers to.
int listReferences(lua_State* L);

} // namespace velmara::console
