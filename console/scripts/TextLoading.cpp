#include "scripts/TextLoading.hpp"

#include "lua/WrappedFunction.hpp"

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
    return callWrapped(L);
}

} // namespace

void limitLoadingToText(lua_State* L)
{
    lua_pushglobaltable(L);
    wrapFunction(L, "load", loadText<3>);
    wrapFunction(L, "loadfile", loadText<2>);
    lua_pop(L, 1);
}

} // namespace velmara::console
