#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// `objects()` as a function for Lua, to be guarded: pushes a sequence of records of all live objects, which prints as
/// an aligned list.
int listObjects(lua_State* L);

/// `references(object)` likewise: pushes a sequence of tables with the `property` and the `object` that it refers to.
int listReferences(lua_State* L);

} // namespace velmara::console
