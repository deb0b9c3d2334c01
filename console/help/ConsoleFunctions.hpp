#pragma once

#include "lua/LuaApi.hpp"

#include <span>

namespace velmara::console {

/// A function or value that the console adds to the globals of Lua.
struct ConsoleFunction {
    char const* name;
    char const* signature;
    char const* text;
};

std::span<ConsoleFunction const> consoleFunctions();

/// The one of that name; null for none.
ConsoleFunction const* findConsoleFunction(std::string_view name);

/// Records what those names mean now, for `consoleFunctionAt`: call it once all are bound.
void recordConsoleFunctions(lua_State* L);

/// The one that the value at `index` is; null for other values.
ConsoleFunction const* consoleFunctionAt(lua_State* L, int index);

} // namespace velmara::console
