#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Replaces `pcall` and `xpcall` by functions that do the same, but do not catch an interruption.
void bindProtectedCalls(lua_State* L);

} // namespace velmara::console
