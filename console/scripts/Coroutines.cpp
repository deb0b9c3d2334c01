#include "scripts/Coroutines.hpp"

#include "lua/ScriptError.hpp"
#include "lua/ScriptFailure.hpp"
#include "lua/WrappedFunction.hpp"
#include "scripts/Interruption.hpp"

namespace velmara::console {

namespace {

/// Calls upvalue 1, Lua's own function, whose first argument is a coroutine.
int callForCoroutine(lua_State* L)
{
    luaL_checkstack(L, 4, nullptr);
    int const count = interruptCount();
    lua_State* const coroutine = lua_tothread(L, 1);
    int results = 0;
    {
        Resumption const resumption(coroutine ? coroutine : L);
        results = callWrapped(L);
    }
    checkInterrupt(L, count);
    return results;
}

/// Closes a coroutine that has failed, and raises its error in `L`.
int raiseFrom(lua_State* L, lua_State* coroutine)
{
    std::vector<ScriptFrame> frames = failureFrames(coroutine, -1, scriptFrames(coroutine, 0, maxFailureFrames));
    std::vector<ScriptFrame> const callers = scriptFrames(L, 1, maxFailureFrames);
    frames.insert(frames.end(), callers.begin(), callers.end());
    bool const hasMemory = lua_status(coroutine) != LUA_ERRMEM;
    lua_resetthread(coroutine); // leaves the error, which may be another one now
    lua_xmove(coroutine, L, 1);
    if (hasMemory)
        recordFailure(L, -1, frames);
    return raised;
}

/// A function of `coroutine.wrap`: resumes upvalue 1.
int resumeWrapped(lua_State* L)
{
    lua_State* const coroutine = lua_tothread(L, lua_upvalueindex(1));
    int const arguments = lua_gettop(L);
    if (!lua_checkstack(coroutine, arguments + 8))
        return luaL_error(L, "too many arguments to resume");
    lua_xmove(L, coroutine, arguments);
    int results = 0;
    int status = LUA_OK;
    {
        Resumption const resumption(coroutine);
        status = lua_resume(coroutine, L, arguments, &results);
    }
    if (status != LUA_OK && status != LUA_YIELD) {
        bool const hasRun = lua_status(coroutine) != LUA_OK && lua_status(coroutine) != LUA_YIELD;
        if (hasRun)
            return raiseFrom(L, coroutine);
        luaL_where(L, 1);
        lua_xmove(coroutine, L, 1);
        lua_concat(L, 2);
        return raised;
    }
    if (!lua_checkstack(L, results)) {
        lua_pop(coroutine, results);
        return luaL_error(L, "too many results to resume");
    }
    lua_xmove(coroutine, L, results);
    return results;
}

int wrap(lua_State* L)
{
    luaL_checktype(L, 1, LUA_TFUNCTION);
    lua_State* const coroutine = lua_newthread(L);
    lua_pushvalue(L, 1);
    lua_xmove(L, coroutine, 1);
    lua_pushcclosure(L, guarded<resumeWrapped>, 1);
    return 1;
}

} // namespace

void bindCoroutineFunctions(lua_State* L)
{
    lua_getglobal(L, LUA_COLIBNAME);
    wrapFunction(L, "resume", callForCoroutine);
    wrapFunction(L, "close", callForCoroutine);
    lua_pushcfunction(L, wrap);
    lua_setfield(L, -2, "wrap");
    lua_pop(L, 1);
}

} // namespace velmara::console
