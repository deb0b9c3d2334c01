#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Binds `snapshot` and `recordlines`.
void bindSnapshotFunctions(lua_State* L);

} // namespace velmara::console
