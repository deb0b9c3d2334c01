#include "scripts/RestrictedLibraries.hpp"

#include "scripts/TextLoading.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace velmara::console {

namespace {

/// Opens a library and pushes its table, without making it a global.
void open(lua_State* L, char const* name, lua_CFunction library)
{
    luaL_requiref(L, name, library, 0);
}

/// Replaces the library on top by a table of only the named functions.
template <std::size_t Count>
void pick(lua_State* L, char const* const (&names)[Count])
{
    lua_createtable(L, 0, Count);
    for (char const* name : names) {
        lua_getfield(L, -2, name);
        lua_setfield(L, -2, name);
    }
    lua_remove(L, -2);
}

/// Lua's own function, limited to the options that leave the collector's settings alone.
int collectGarbage(lua_State* L)
{
    constexpr char const* options[] = {"collect", "count", "isrunning", "step", nullptr};
    luaL_checkoption(L, 1, "collect", options);
    lua_settop(L, 1); // without the size of a step
    lua_pushvalue(L, lua_upvalueindex(1));
    lua_insert(L, 1);
    lua_call(L, lua_gettop(L) - 1, LUA_MULTRET);
    return lua_gettop(L);
}

void openBase(lua_State* L)
{
    using namespace std::string_view_literals;
    constexpr std::string_view allowed[] = {
        "_G"sv,       "_VERSION"sv, "assert"sv, "collectgarbage"sv, "error"sv,  "getmetatable"sv,
        "ipairs"sv,   "load"sv,     "next"sv,   "pairs"sv,          "pcall"sv,  "print"sv,
        "rawequal"sv, "rawget"sv,   "rawlen"sv, "rawset"sv,         "select"sv, "setmetatable"sv,
        "tonumber"sv, "tostring"sv, "type"sv,   "xpcall"sv};
    open(L, LUA_GNAME, luaopen_base);
    for (lua_pushnil(L); lua_next(L, -2);) {
        lua_pop(L, 1);
        if (std::ranges::find(allowed, textAt(L, -1)) != std::end(allowed))
            continue;
        lua_pushvalue(L, -1);
        lua_pushnil(L);
        lua_rawset(L, -4);
    }
    lua_getfield(L, -1, "collectgarbage");
    lua_pushcclosure(L, collectGarbage, 1);
    lua_setfield(L, -2, "collectgarbage");
    lua_pop(L, 1);
    limitLoadingToText(L);
}

void openStrings(lua_State* L)
{
    open(L, LUA_STRLIBNAME, luaopen_string);
    lua_pushnil(L);
    lua_setfield(L, -2, "dump");
    lua_setglobal(L, LUA_STRLIBNAME);
    lua_pushliteral(L, "");
    lua_getmetatable(L, -1);
    lua_pushliteral(L, "string");
    lua_setfield(L, -2, "__metatable");
    lua_pop(L, 2);
}

void openTime(lua_State* L)
{
    constexpr char const* names[] = {"clock", "date", "difftime", "time"};
    open(L, LUA_OSLIBNAME, luaopen_os);
    pick(L, names);
    lua_setglobal(L, LUA_OSLIBNAME);
}

} // namespace

void openRestrictedLibraries(lua_State* L)
{
    openBase(L);
    openStrings(L);
    openTime(L);
    constexpr luaL_Reg whole[] = {{LUA_COLIBNAME, luaopen_coroutine},
                                  {LUA_MATHLIBNAME, luaopen_math},
                                  {LUA_TABLIBNAME, luaopen_table},
                                  {LUA_UTF8LIBNAME, luaopen_utf8}};
    for (luaL_Reg const& library : whole) {
        open(L, library.name, library.func);
        lua_setglobal(L, library.name);
    }
}

} // namespace velmara::console
