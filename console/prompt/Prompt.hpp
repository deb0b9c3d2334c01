#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

struct PromptOptions {
    bool pagesOutput = true;
    bool keepsHistory = true;
};

/// Reads and runs input until its end: shows the values of expressions, continues unfinished statements on the next
/// line, reports failures and goes on.
void runPrompt(lua_State* L, PromptOptions const& options);

} // namespace velmara::console
