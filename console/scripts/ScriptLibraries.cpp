#include "scripts/ScriptLibraries.hpp"

#include "lua/Table.hpp"
#include "scripts/TextLoading.hpp"

#include <algorithm>
#include <string>
#include <string_view>

namespace velmara::console {

namespace {

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
}

} // namespace velmara::console
