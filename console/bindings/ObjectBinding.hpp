#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Gives host objects their members: methods as functions, properties to be read and set.
void bindObjectMembers(lua_State* L);

} // namespace velmara::console
