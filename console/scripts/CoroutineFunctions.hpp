#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Replaces `coroutine.resume` and `coroutine.wrap` by functions that let Ctrl-C reach a coroutine.
void bindCoroutineFunctions(lua_State* L);

} // namespace velmara::console
