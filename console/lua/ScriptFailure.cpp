#include "lua/ScriptFailure.hpp"

#include "lua/CachedValue.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

// Its address is the key of the latest failure in the registry: a table with `value`, `number`, and the position and
// function of one frame after the other.
char const failureKey = 0;

lua_State* mainThread(lua_State* L)
{
    lua_rawgeti(L, LUA_REGISTRYINDEX, LUA_RIDX_MAINTHREAD);
    lua_State* const state = lua_tothread(L, -1);
    lua_pop(L, 1);
    return state;
}

/// Pushes the latest failure's table and its value; false, and nothing pushed, when there is none.
bool pushLatest(lua_State* L)
{
    luaL_checkstack(L, 8, nullptr);
    if (lua_rawgetp(L, LUA_REGISTRYINDEX, &failureKey) != LUA_TTABLE) {
        lua_pop(L, 1);
        return false;
    }
    lua_getfield(L, -1, "value");
    return true;
}

lua_Integer numberOf(lua_State* L, int table)
{
    lua_getfield(L, table, "number");
    lua_Integer const number = lua_tointeger(L, -1);
    lua_pop(L, 1);
    return number;
}

/// Pushes the table of the next failure.
void pushRecord(lua_State* L, int value, std::vector<ScriptFrame> const& frames)
{
    lua_Integer number = 1;
    if (pushLatest(L)) {
        number = numberOf(L, -2) + 1;
        lua_pop(L, 2);
    }
    pushSequence(L, frames.size() * 2,
                 [&](std::size_t i) { pushText(L, i % 2 == 0 ? frames[i / 2].position : frames[i / 2].function); });
    setField(L, "number", number);
    lua_pushvalue(L, value);
    lua_setfield(L, -2, "value");
}

/// The script has the value of the failure on top now: it is kept for comparison only.
void weaken(lua_State* L)
{
    pushNamedMetatable(L, "velmara.failure", [L] { setField(L, "__mode", "v"); });
    lua_setmetatable(L, -2);
}

bool isSame(ScriptFrame const& a, ScriptFrame const& b)
{
    return a.position == b.position;
}

} // namespace

int recordFailure(lua_State* L)
{
    lua_settop(L, 1);
    pushRecord(L, 1, failureFrames(L, 1, scriptFrames(L, 1, maxFailureFrames)));
    lua_rawsetp(L, LUA_REGISTRYINDEX, &failureKey);
    return 1;
}

void recordFailure(lua_State* L, int index, std::vector<ScriptFrame> const& frames)
{
    pushRecord(L, lua_absindex(L, index), frames);
    weaken(L);
    lua_rawsetp(L, LUA_REGISTRYINDEX, &failureKey);
}

ScriptFailure failureOf(lua_State* L, int index)
{
    index = lua_absindex(L, index);
    Error const error = isError(L, index) ? Error(fieldText(L, index, "identifier"), fieldText(L, index, "text"))
                                          : Error(scriptErrorIdentifier, errorText(L, index));
    lua_Integer number = 0;
    if (pushLatest(L)) {
        if (lua_rawequal(L, index, -1)) // else there was no memory or stack to record this one
            number = numberOf(L, -2);
        lua_pop(L, 2);
    }
    return {error, mainThread(L), number};
}

void pushFailure(lua_State* L, ScriptFailure const& failure)
{
    if (pushLatest(L)) {
        if (failure.state_ == mainThread(L) && failure.number_ == numberOf(L, -2)) {
            lua_insert(L, -2);
            weaken(L);
            lua_pop(L, 1);
            return;
        }
        lua_pop(L, 2);
    }
    pushError(L, static_cast<Error const&>(failure));
}

std::vector<ScriptFrame> failureFrames(lua_State* L, int index, std::vector<ScriptFrame> running)
{
    index = lua_absindex(L, index);
    if (!pushLatest(L))
        return running;
    std::vector<ScriptFrame> frames;
    if (lua_rawequal(L, index, -1)) {
        lua_Unsigned const count = lua_rawlen(L, -2) / 2;
        visitSequence(L, lua_absindex(L, -2), count * 2, [&](std::size_t i) {
            if (i % 2 == 0)
                frames.push_back({std::string(textAt(L, -1)), {}});
            else
                frames.back().function = textAt(L, -1);
        });
    }
    lua_pop(L, 2);
    bool const cameHere =
        frames.size() > running.size() && std::equal(running.rbegin(), running.rend(), frames.rbegin(), isSame);
    return cameHere ? frames : running;
}

} // namespace velmara::console
