#include "scripts/RestrictedLibraries.hpp"

#include "lua/Table.hpp"
#include "lua/WrappedFunction.hpp"
#include "scripts/TextLoading.hpp"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace velmara::console {

namespace {

/// Opens a library and pushes its table, without making it a global.
void open(lua_State* L, char const* name, lua_CFunction library)
{
    luaL_requiref(L, name, library, 0);
}

/// Lua's own function, limited to the options that leave the collector's settings alone.
int collectGarbage(lua_State* L)
{
    constexpr char const* options[] = {"collect", "count", "isrunning", "step", nullptr};
    luaL_checkoption(L, 1, "collect", options);
    lua_settop(L, 1); // without the size of a step
    return callWrapped(L);
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
    wrapFunction(L, "collectgarbage", collectGarbage);
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
    setField(L, "__metatable", "string");
    lua_pop(L, 2);
}

void openTime(lua_State* L)
{
    open(L, LUA_OSLIBNAME, luaopen_os);
    selectFields(L, {"clock", "date", "difftime", "time"});
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
