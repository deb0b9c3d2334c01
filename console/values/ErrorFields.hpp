#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Has the fields of errors converted as results of calls are.
void bindErrorFields(lua_State* L);

} // namespace velmara::console
