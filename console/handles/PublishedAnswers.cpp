#include "handles/PublishedAnswers.hpp"

namespace velmara::console {

namespace {

/// Needs no memory.
void clearTable(lua_State* L, int table)
{
    for (lua_pushnil(L); lua_next(L, table) != 0;) {
        lua_pop(L, 1);
        lua_pushvalue(L, -1);
        lua_pushnil(L);
        lua_rawset(L, table);
    }
}

} // namespace

void PublishedAnswers::forget(lua_State* L)
{
    luaL_checkstack(L, 8, nullptr);
    for (RegistryTable* const tables : {&members, &contents}) {
        tables->push(L);
        int const outer = lua_gettop(L);
        for (lua_pushnil(L); lua_next(L, outer) != 0; lua_pop(L, 1))
            clearTable(L, lua_gettop(L));
        lua_settop(L, outer - 1);
    }
    metatables.push(L);
    clearTable(L, lua_gettop(L));
    lua_pop(L, 1);
}

} // namespace velmara::console
