#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Puts functions that let Ctrl-C reach a coroutine in the place of `coroutine.resume` and `coroutine.wrap`.
void bindCoroutineFunctions(lua_State* L);

} // namespace velmara::console
