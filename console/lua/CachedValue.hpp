#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Pushes the value that the table at the absolute `table` has for `key`: the first time the one that `create` pushes.
/// It is kept only when that has succeeded, so that a shortage of memory leaves none that is half done.
template <class Create>
void pushCached(lua_State* L, int table, std::string_view key, Create const& create)
{
    pushText(L, key);
    if (lua_rawget(L, table) != LUA_TNIL)
        return;
    lua_pop(L, 1);
    create();
    pushText(L, key);
    lua_pushvalue(L, -2);
    lua_rawset(L, table);
}

/// The same for a field of a table in the registry, which is pushed first and replaced by the value.
template <class Create>
void pushCached(lua_State* L, char const* tableName, std::string_view key, Create const& create)
{
    luaL_getsubtable(L, LUA_REGISTRYINDEX, tableName);
    pushCached(L, lua_gettop(L), key, create);
    lua_remove(L, -2);
}

/// Pushes the metatable of that name (`luaL_testudata` knows it). The first time `fill` sets its fields, the table on
/// top of the stack.
template <class Fill>
void pushNamedMetatable(lua_State* L, char const* name, Fill const& fill)
{
    pushCached(L, LUA_REGISTRYINDEX, name, [&] {
        lua_newtable(L);
        lua_pushstring(L, name);
        lua_setfield(L, -2, "__name");
        fill();
    });
}

} // namespace velmara::console
