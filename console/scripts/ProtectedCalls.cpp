#include "scripts/ProtectedCalls.hpp"

#include "scripts/Interruption.hpp"

namespace velmara::console {

namespace {

/// The results of a protected call are on top of `Kept` values; `count` is that of interruptions before it.
template <int Kept>
int finish(lua_State* L, int status, lua_KContext count)
{
    checkInterrupt(L, static_cast<int>(count));
    if (status == LUA_OK || status == LUA_YIELD)
        return lua_gettop(L) - Kept;
    lua_pushboolean(L, false);
    lua_insert(L, -2);
    return 2;
}

/// `pcall(function, ...)`
int callProtected(lua_State* L)
{
    luaL_checkany(L, 1);
    int const count = interruptCount();
    lua_pushboolean(L, true); // the first result if there is no error
    lua_insert(L, 1);
    return finish<0>(L, lua_pcallk(L, lua_gettop(L) - 2, LUA_MULTRET, 0, count, finish<0>), count);
}

/// `xpcall(function, handler, ...)`
int callWithHandler(lua_State* L)
{
    luaL_checktype(L, 2, LUA_TFUNCTION);
    int const count = interruptCount();
    int const arguments = lua_gettop(L) - 2;
    lua_pushboolean(L, true); // the first result if there is no error
    lua_pushvalue(L, 1);
    lua_rotate(L, 3, 2);
    return finish<2>(L, lua_pcallk(L, arguments, LUA_MULTRET, 2, count, finish<2>), count);
}

} // namespace

void bindProtectedCalls(lua_State* L)
{
    lua_register(L, "pcall", callProtected);
    lua_register(L, "xpcall", callWithHandler);
}

} // namespace velmara::console
