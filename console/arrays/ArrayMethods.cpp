#include "arrays/ArrayMethods.hpp"

#include "lua/ScriptError.hpp"
#include "text/CloseMatches.hpp"

namespace velmara::console {

namespace {

constexpr char const* methodTable = "velmara.array.methods";

[[noreturn]] void failUnknownMethod(lua_State* L, std::string const& name)
{
    std::vector<std::string> names;
    pushArrayMethods(L);
    for (lua_pushnil(L); lua_next(L, -2); lua_pop(L, 1))
        names.emplace_back(textAt(L, -2));
    fail("index", "arrays have no method '" + name + '\'' + didYouMean(name, names));
}

} // namespace

void pushArrayMethods(lua_State* L)
{
    luaL_getsubtable(L, LUA_REGISTRYINDEX, methodTable);
}

void pushArrayMethod(lua_State* L)
{
    pushArrayMethods(L);
    lua_pushvalue(L, -2);
    if (lua_rawget(L, -2) == LUA_TNIL)
        failUnknownMethod(L, std::string(textAt(L, -3)));
    lua_replace(L, -3);
    lua_pop(L, 1);
}

} // namespace velmara::console
