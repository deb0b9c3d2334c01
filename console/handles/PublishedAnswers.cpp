#include "handles/PublishedAnswers.hpp"

#include <iterator>

namespace velmara::console {

namespace {

constexpr Answers allAnswers[] = {Answers::Members, Answers::Contents, Answers::Metatables};

// Their addresses are the keys of the tables in the registry.
char const answerKeys[std::size(allAnswers)] = {};

/// Needs no memory.
void clearTable(lua_State* L, int table)
{
    for (lua_pushnil(L); lua_next(L, table) != 0;) {
        lua_pop(L, 1);
        lua_pushvalue(L, -1);
        lua_pushnil(L);
        lua_rawset(L, table);
    }
}

} // namespace

void pushAnswers(lua_State* L, Answers answers)
{
    char const* const key = &answerKeys[static_cast<int>(answers)];
    if (lua_rawgetp(L, LUA_REGISTRYINDEX, key) == LUA_TTABLE)
        return;
    lua_pop(L, 1);
    lua_newtable(L);
    lua_pushvalue(L, -1);
    lua_rawsetp(L, LUA_REGISTRYINDEX, key);
}

void forgetAnswers(lua_State* L)
{
    luaL_checkstack(L, 8, nullptr);
    for (Answers const answers : allAnswers) {
        pushAnswers(L, answers);
        int const table = lua_gettop(L);
        bool const areTables = answers != Answers::Metatables;
        for (lua_pushnil(L); areTables && lua_next(L, table) != 0; lua_pop(L, 1))
            clearTable(L, lua_gettop(L));
        lua_settop(L, table);
        if (!areTables)
            clearTable(L, table);
        lua_pop(L, 1);
    }
}

} // namespace velmara::console
