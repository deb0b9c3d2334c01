#include "scripts/CoroutineFunctions.hpp"

#include "scripts/Interruption.hpp"

namespace velmara::console {

namespace {

/// Calls upvalue 1 with all arguments; meanwhile Ctrl-C reaches `coroutine`.
int callWhileRunning(lua_State* L, lua_State* coroutine)
{
    luaL_checkstack(L, 4, nullptr);
    Interruption::Resumption const resumption(L, coroutine ? coroutine : L);
    lua_pushvalue(L, lua_upvalueindex(1));
    lua_insert(L, 1);
    lua_call(L, lua_gettop(L) - 1, LUA_MULTRET);
    return lua_gettop(L);
}

int resume(lua_State* L)
{
    return callWhileRunning(L, lua_tothread(L, 1));
}

/// Upvalue 1 is the result of Lua's own `wrap`, whose upvalue 1 is the coroutine.
int callWrapped(lua_State* L)
{
    lua_State* coroutine = nullptr;
    if (lua_getupvalue(L, lua_upvalueindex(1), 1)) {
        coroutine = lua_tothread(L, -1);
        lua_pop(L, 1); // the function still holds it
    }
    return callWhileRunning(L, coroutine);
}

int wrap(lua_State* L)
{
    lua_pushvalue(L, lua_upvalueindex(1));
    lua_insert(L, 1);
    lua_call(L, lua_gettop(L) - 1, 1);
    lua_pushcclosure(L, callWrapped, 1);
    return 1;
}

void replace(lua_State* L, char const* name, lua_CFunction function)
{
    lua_getfield(L, -1, name);
    lua_pushcclosure(L, function, 1);
    lua_setfield(L, -2, name);
}

} // namespace

void bindCoroutineFunctions(lua_State* L)
{
    lua_getglobal(L, LUA_COLIBNAME);
    replace(L, "resume", resume);
    replace(L, "wrap", wrap);
    lua_pop(L, 1);
}

} // namespace velmara::console
