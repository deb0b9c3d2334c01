#include "handles/Proxy.hpp"

#include "handles/HostContext.hpp"
#include "lua/CachedValue.hpp"
#include "lua/Table.hpp"

namespace velmara::console {

namespace {

// Their addresses are keys in the registry.
char const namesKey = 0;           // of the table of all proxies' names
char const proxyCompletionKey = 0; // of what completes their metatables

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

void completeProxiesWith(lua_State* L, lua_CFunction complete)
{
    lua_pushcfunction(L, complete);
    lua_rawsetp(L, LUA_REGISTRYINDEX, &proxyCompletionKey);
}

void pushProxy(lua_State* L, std::string_view fullName)
{
    luaL_checkstack(L, 8, nullptr);
    pushNames(L);
    int const names = lua_gettop(L);
    pushCached(L, names, fullName, [&] {
        lua_newtable(L);
        lua_newtable(L);
        setField(L, "__metatable", "package");
        setField(L, "__name", "host name"); // in Lua's own errors
        lua_rawgetp(L, LUA_REGISTRYINDEX, &proxyCompletionKey);
        lua_pushvalue(L, -2);
        lua_pushvalue(L, -4);
        lua_pushlightuserdata(L, &HostContext::of(L).nameRecords().of(fullName));
        lua_call(L, 3, 0);
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
    if (!lua_getmetatable(L, index))
        return {};
    lua_pop(L, 1);
    lua_pushvalue(L, index);
    pushNames(L);
    lua_insert(L, -2);
    lua_rawget(L, -2);
    std::string_view const name = textAt(L, -1);
    lua_pop(L, 2); // the table of names still holds it
    return name;
}

} // namespace velmara::console
