#include "scripts/TextLoading.hpp"

namespace velmara::console {

namespace {

/// Lua's own function (upvalue 1) with the mode "t" as its argument `Mode`.
template <int Mode>
int loadText(lua_State* L)
{
    if (lua_gettop(L) < Mode)
        lua_settop(L, Mode);
    lua_pushliteral(L, "t");
    lua_replace(L, Mode);
    lua_pushvalue(L, lua_upvalueindex(1));
    lua_insert(L, 1);
    lua_call(L, lua_gettop(L) - 1, LUA_MULTRET);
    return lua_gettop(L);
}

template <int Mode>
void limitToText(lua_State* L, char const* name)
{
    if (lua_getglobal(L, name) == LUA_TNIL)
        return lua_pop(L, 1);
    lua_pushcclosure(L, loadText<Mode>, 1);
    lua_setglobal(L, name);
}

} // namespace

void limitLoadingToText(lua_State* L)
{
    limitToText<3>(L, "load");
    limitToText<2>(L, "loadfile");
}

} // namespace velmara::console
