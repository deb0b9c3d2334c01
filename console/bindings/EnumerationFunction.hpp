#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Binds `enumeration(name, enumerators)`, which publishes an enumeration and returns its class.
void bindEnumerationFunction(lua_State* L);

} // namespace velmara::console
