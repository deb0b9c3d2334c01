#include "scripts/TimedCalls.hpp"

#include "lua/CachedValue.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"
#include "lua/WrappedFunction.hpp"
#include "terminal/ProgressLine.hpp"

#include <chrono>
#include <new>
#include <type_traits>

namespace velmara::console {

namespace {

double now()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// The start is at 1, and the results above.
int finishTime(lua_State* L, int, lua_KContext)
{
    lua_pushnumber(L, now() - lua_tonumber(L, 1));
    lua_replace(L, 1);
    return lua_gettop(L);
}

int time(lua_State* L)
{
    luaL_checkany(L, 1);
    int const arguments = lua_gettop(L) - 1;
    lua_pushnumber(L, now());
    lua_insert(L, 1);
    lua_callk(L, arguments, LUA_MULTRET, 0, finishTime);
    return finishTime(L, LUA_OK, 0);
}

int eraseProgress(lua_State*)
{
    ProgressLine::erase();
    return 0;
}

/// Upvalue 1 is Lua's own function, which prints.
int printWithoutProgress(lua_State* L)
{
    ProgressLine::erase();
    return callWrapped(L);
}

/// Pushes a progress line, to be closed with the running function.
void pushProgress(lua_State* L, lua_Integer total)
{
    static_assert(std::is_trivially_destructible_v<ProgressLine>);
    new (lua_newuserdatauv(L, sizeof(ProgressLine), 0)) ProgressLine(static_cast<std::size_t>(total));
    pushNamedMetatable(L, "velmara.progress", [L] { setField(L, "__close", eraseProgress); });
    lua_setmetatable(L, -2);
    lua_toclose(L, -1);
}

/// The list is at 1, the function at 2, the list's length at 3, the progress at 4; `done` elements were passed.
int continueEach(lua_State* L, int, lua_KContext done)
{
    lua_Integer const count = lua_tointeger(L, 3);
    auto& progress = *static_cast<ProgressLine*>(lua_touserdata(L, 4));
    for (lua_Integer i = done + 1; i <= count; ++i) {
        progress.update(static_cast<std::size_t>(i - 1));
        lua_pushvalue(L, 2);
        lua_geti(L, 1, i);
        lua_pushinteger(L, i);
        lua_callk(L, 2, 0, i, continueEach);
    }
    return 0;
}

int each(lua_State* L)
{
    luaL_checkany(L, 2);
    lua_settop(L, 2);
    lua_Integer const count = luaL_len(L, 1);
    lua_pushinteger(L, count);
    pushProgress(L, count);
    return continueEach(L, LUA_OK, 0);
}

} // namespace

void bindTimedCalls(lua_State* L)
{
    lua_register(L, "time", time);
    lua_register(L, "each", guarded<each>);
    lua_pushglobaltable(L);
    wrapFunction(L, "print", printWithoutProgress);
    if (lua_getfield(L, -1, LUA_IOLIBNAME) == LUA_TTABLE)
        wrapFunction(L, "write", printWithoutProgress);
    lua_pop(L, 2);
}

} // namespace velmara::console
