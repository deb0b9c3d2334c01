#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Pushes the metatable of that name (`luaL_testudata` knows it). The first time `fill` sets its fields, the table on
/// top of the stack: only when that succeeds is it kept, so that a shortage of memory leaves none that is half filled.
template <class Fill>
void pushNamedMetatable(lua_State* L, char const* name, Fill const& fill)
{
    if (luaL_getmetatable(L, name) == LUA_TTABLE)
        return;
    lua_pop(L, 1);
    lua_newtable(L);
    lua_pushstring(L, name);
    lua_setfield(L, -2, "__name");
    fill();
    lua_pushvalue(L, -1);
    lua_setfield(L, LUA_REGISTRYINDEX, name);
}

} // namespace velmara::console
