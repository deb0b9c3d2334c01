#pragma once

#include "lua/LuaApi.hpp"

#include <span>

namespace velmara::console {

/// A method that a script calls on host arrays.
struct ArrayMethod {
    char const* name;
    char const* signature;
    char const* text;
    lua_CFunction function;
};

/// All of them.
std::span<ArrayMethod const> arrayMethods();

/// Replaces the name on top of the stack by the method. Throws an `Error` that names similar ones when there is none.
void pushArrayMethod(lua_State* L);

} // namespace velmara::console
