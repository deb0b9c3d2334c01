#include "scripts/CoroutineFunctions.hpp"

#include "lua/WrappedFunction.hpp"
#include "scripts/Interruption.hpp"

namespace velmara::console {

namespace {

/// Calls upvalue 1 with all arguments; meanwhile Ctrl-C reaches `coroutine`.
int callWhileRunning(lua_State* L, lua_State* coroutine)
{
    luaL_checkstack(L, 4, nullptr);
    Interruption::Resumption const resumption(L, coroutine ? coroutine : L);
    return callWrapped(L);
}

int resume(lua_State* L)
{
    return callWhileRunning(L, lua_tothread(L, 1));
}

/// Upvalue 1 is the result of Lua's own `wrap`, whose upvalue 1 is the coroutine.
int callCoroutine(lua_State* L)
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
    callWrapped(L);
    lua_pushcclosure(L, callCoroutine, 1);
    return 1;
}

} // namespace

void bindCoroutineFunctions(lua_State* L)
{
    lua_getglobal(L, LUA_COLIBNAME);
    wrapFunction(L, "resume", resume);
    wrapFunction(L, "wrap", wrap);
    lua_pop(L, 1);
}

} // namespace velmara::console
