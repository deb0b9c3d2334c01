#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Reads and runs input until it ends: an expression's values are shown, an unfinished statement goes on in the next
/// line, a failure is reported and the prompt goes on.
void runPrompt(lua_State* L);

} // namespace velmara::console
