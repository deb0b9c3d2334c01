#include "handles/Proxy.hpp"

#include "lua/CachedValue.hpp"
#include "lua/Table.hpp"

namespace velmara::console {

namespace {

char const namesKey = 0; // its address is the key of the table of all proxies' names

void pushNames(lua_State* L)
{
    if (lua_rawgetp(L, LUA_REGISTRYINDEX, &namesKey) == LUA_TTABLE)
        return;
    lua_pop(L, 1);
    lua_newtable(L);
    lua_pushvalue(L, -1);
    lua_rawsetp(L, LUA_REGISTRYINDEX, &namesKey);
}

} // namespace

void pushProxyMetatable(lua_State* L)
{
    pushNamedMetatable(L, "velmara.package", [L] {
        setField(L, "__metatable", "package");
        setField(L, "__name", "host name"); // in Lua's own errors
    });
}

void pushProxy(lua_State* L, std::string_view fullName)
{
    luaL_checkstack(L, 8, nullptr);
    pushNames(L);
    int const names = lua_gettop(L);
    pushCached(L, names, fullName, [&] {
        lua_newtable(L);
        pushProxyMetatable(L);
        lua_setmetatable(L, -2);
        // Names and proxies are in one table, each the key of the other.
        lua_pushvalue(L, -1);
        pushText(L, fullName);
        lua_rawset(L, names);
    });
    lua_remove(L, names);
}

std::string_view proxyName(lua_State* L, int index)
{
    if (!lua_istable(L, index))
        return {};
    luaL_checkstack(L, 4, nullptr);
    lua_pushvalue(L, index);
    pushNames(L);
    lua_insert(L, -2);
    lua_rawget(L, -2);
    std::string_view const name = textAt(L, -1);
    lua_pop(L, 2); // the table of names still holds it
    return name;
}

} // namespace velmara::console
