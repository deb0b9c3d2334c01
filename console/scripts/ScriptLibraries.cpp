#include "scripts/ScriptLibraries.hpp"

#include "lua/Table.hpp"
#include "lua/WrappedFunction.hpp"
#include "scripts/Coroutines.hpp"
#include "scripts/Interruption.hpp"
#include "scripts/ProtectedCalls.hpp"

#include <algorithm>
#include <csignal>
#include <iterator>
#include <string>
#include <string_view>

namespace velmara::console {

namespace {

/// Lua's own function with the mode "t" as its argument `Mode`.
template <int Mode>
int loadText(lua_State* L)
{
    if (lua_gettop(L) < Mode)
        lua_settop(L, Mode);
    lua_pushliteral(L, "t");
    lua_replace(L, Mode);
    int const count = interruptCount();
    int const results = callWrapped(L);
    checkInterrupt(L, count); // in a function that gives the text in pieces
    return results;
}

/// Bytecode that a script has crafted can crash the process.
void limitLoadingToText(lua_State* L)
{
    lua_pushglobaltable(L);
    wrapFunction(L, "load", loadText<3>);
    wrapFunction(L, "loadfile", loadText<2>);
    lua_pop(L, 1);
}

int runFile(lua_State* L)
{
    char const* file = luaL_optstring(L, 1, nullptr);
    lua_settop(L, 1);
    if (luaL_loadfilex(L, file, "t") != LUA_OK)
        return lua_error(L);
    lua_call(L, 0, LUA_MULTRET);
    return lua_gettop(L) - 1;
}

/// A searcher of `require`: finds a script along `package.path`. Upvalue 1 is the library `package`.
int searchScript(lua_State* L)
{
    luaL_checkstring(L, 1);
    lua_getfield(L, lua_upvalueindex(1), "searchpath");
    lua_pushvalue(L, 1);
    lua_getfield(L, lua_upvalueindex(1), "path");
    lua_call(L, 2, 2);
    if (lua_isnil(L, -2))
        return 1; // the message why there is none
    lua_pop(L, 1);
    char const* file = lua_tostring(L, -1);
    if (luaL_loadfilex(L, file, "t") != LUA_OK)
        return luaL_error(L, "error loading module '%s' from file '%s':\n\t%s", lua_tostring(L, 1), file,
                          lua_tostring(L, -1));
    lua_insert(L, -2);
    return 2;
}

/// Removes the current folder: whoever can write to it would decide what runs.
void setSearchPath(lua_State* L)
{
    lua_getfield(L, -1, "path");
    std::string_view left = textAt(L, -1);
    std::string path;
    while (!left.empty()) {
        std::string_view const element = left.substr(0, left.find(*LUA_PATH_SEP));
        left.remove_prefix(std::min(element.size() + 1, left.size()));
        if (!element.starts_with('.'))
            path.append(path.empty() ? "" : LUA_PATH_SEP).append(element);
    }
    pushText(L, path);
    lua_setfield(L, -3, "path");
    lua_pop(L, 1);
}

/// Lua's own function. Ctrl-C in a program that it runs is meant for the script, too.
int execute(lua_State* L)
{
    int const results = callWrapped(L);
    if (results == 3 && textAt(L, -2) == "signal" && lua_tointeger(L, -1) == SIGINT)
        interruptScript(L);
    return results;
}

void limitPackages(lua_State* L)
{
    lua_getglobal(L, LUA_LOADLIBNAME);
    setSearchPath(L);
    for (char const* name : {"loadlib", "cpath"}) {
        lua_pushnil(L);
        lua_setfield(L, -2, name);
    }
    // Of the four searchers only the first stays, which looks in `package.preload`.
    lua_getfield(L, -1, "searchers");
    lua_pushvalue(L, -2);
    lua_pushcclosure(L, searchScript, 1);
    lua_rawseti(L, -2, 2);
    for (int searcher : {3, 4}) {
        lua_pushnil(L);
        lua_rawseti(L, -2, searcher);
    }
    lua_pop(L, 2);
}

void limitDebug(lua_State* L)
{
    lua_getglobal(L, LUA_DBLIBNAME);
    selectFields(L, {"getinfo", "traceback"});
    luaL_getsubtable(L, LUA_REGISTRYINDEX, LUA_LOADED_TABLE);
    lua_pushvalue(L, -2);
    lua_setfield(L, -2, LUA_DBLIBNAME);
    lua_pop(L, 1);
    lua_setglobal(L, LUA_DBLIBNAME);
}

/// Opens a library and pushes its table, without making it a global.
void openLibrary(lua_State* L, char const* name, lua_CFunction library)
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
    openLibrary(L, LUA_GNAME, luaopen_base);
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
    openLibrary(L, LUA_STRLIBNAME, luaopen_string);
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
    openLibrary(L, LUA_OSLIBNAME, luaopen_os);
    selectFields(L, {"clock", "date", "difftime", "time"});
    lua_setglobal(L, LUA_OSLIBNAME);
}

} // namespace

void openScriptLibraries(lua_State* L)
{
    lua_pushboolean(L, true);
    lua_setfield(L, LUA_REGISTRYINDEX, "LUA_NOENV"); // ignores LUA_PATH
    luaL_openlibs(L);
    limitLoadingToText(L);
    lua_register(L, "dofile", runFile);
    limitPackages(L);
    limitDebug(L);
    lua_getglobal(L, LUA_OSLIBNAME);
    wrapFunction(L, "execute", execute);
    lua_pop(L, 1);
    bindProtectedCalls(L);
    bindCoroutineFunctions(L);
}

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
        openLibrary(L, library.name, library.func);
        lua_setglobal(L, library.name);
    }
    bindProtectedCalls(L);
    bindCoroutineFunctions(L);
}

} // namespace velmara::console
