#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Replaces the function `name` of the table on top, if there is one, by `wrapper`, whose upvalue 1 it becomes.
inline void wrapFunction(lua_State* L, char const* name, lua_CFunction wrapper)
{
    if (lua_getfield(L, -1, name) == LUA_TNIL)
        return lua_pop(L, 1);
    lua_pushcclosure(L, wrapper, 1);
    lua_setfield(L, -2, name);
}

/// Calls upvalue 1 with the arguments of the running function, as they are on the stack; returns the number of results.
inline int callWrapped(lua_State* L)
{
    lua_pushvalue(L, lua_upvalueindex(1));
    lua_insert(L, 1);
    lua_call(L, lua_gettop(L) - 1, LUA_MULTRET);
    return lua_gettop(L);
}

} // namespace velmara::console
