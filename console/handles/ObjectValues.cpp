#include "handles/ObjectValues.hpp"

#include "lua/Table.hpp"

namespace velmara::console {

namespace {

char const valuesKey = 0; // its address is the key of the table in the registry

} // namespace

void pushWeakTable(lua_State* L, void const* key, char const* mode)
{
    if (lua_rawgetp(L, LUA_REGISTRYINDEX, key) == LUA_TTABLE)
        return;
    lua_pop(L, 1);
    lua_newtable(L);
    lua_createtable(L, 0, 1);
    setField(L, "__mode", mode);
    lua_setmetatable(L, -2);
    lua_pushvalue(L, -1);
    lua_rawsetp(L, LUA_REGISTRYINDEX, key);
}

void pushRecordedValue(lua_State* L, orbis::COSInterface const* host)
{
    pushWeakTable(L, &valuesKey, "v");
    lua_rawgetp(L, -1, host);
    lua_remove(L, -2);
}

void recordValue(lua_State* L, orbis::COSInterface const* host, int index)
{
    index = lua_absindex(L, index);
    pushWeakTable(L, &valuesKey, "v");
    lua_pushvalue(L, index);
    lua_rawsetp(L, -2, host);
    lua_pop(L, 1);
}

} // namespace velmara::console
