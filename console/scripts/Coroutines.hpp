#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Replaces `coroutine.resume`, `wrap` and `close` by functions that do the same, but through which Ctrl-C reaches the
/// coroutine. An error that leaves a function of `wrap` stays as it was raised, and is reported with the coroutine's
/// running functions.
void bindCoroutineFunctions(lua_State* L);

} // namespace velmara::console
