#include "handles/ObjectValues.hpp"

#include "lua/Table.hpp"

#include "velmara/Hvm.hpp"

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

namespace {

/// Pushes the table of the values by the numbers of their objects.
void pushValues(lua_State* L)
{
    pushWeakTable(L, &valuesKey, "v");
}

lua_Integer numberOf(orbis::COSInterface const* host)
{
    return embedderNumber(const_cast<orbis::COSInterface&>(*host));
}

} // namespace

void pushRecordedValue(lua_State* L, orbis::COSInterface const* host)
{
    lua_Integer const number = numberOf(host);
    if (number == 0)
        return lua_pushnil(L);
    pushValues(L);
    lua_rawgeti(L, -1, number);
    lua_replace(L, -2);
}

void recordValue(lua_State* L, orbis::COSInterface* host, int index, std::size_t number)
{
    embedderNumber(*host) = static_cast<std::uint32_t>(number + 1); // 0 is that of objects without a value
    recordValue(L, host, index);
}

void recordValue(lua_State* L, orbis::COSInterface const* host, int index)
{
    index = lua_absindex(L, index);
    pushValues(L);
    lua_pushvalue(L, index);
    lua_rawseti(L, -2, numberOf(host));
    lua_pop(L, 1);
}

} // namespace velmara::console
