#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// For long work in native code: raises the error of Ctrl-C when that was pressed, as a call of a function does.
inline void letInterrupt(lua_State* L)
{
    luaL_checkstack(L, 1, nullptr);
    lua_pushcfunction(L, [](lua_State*) { return 0; });
    lua_call(L, 0, 0);
}

} // namespace velmara::console
