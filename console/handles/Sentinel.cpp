#include "handles/Sentinel.hpp"

#include "lua/CachedValue.hpp"
#include "lua/Table.hpp"

namespace velmara::console {

namespace {

constexpr char const* nullType = "velmara.null";
constexpr char const* missingType = "velmara.missing";

/// Upvalue 1 is the text.
int sentinelText(lua_State* L)
{
    lua_pushvalue(L, lua_upvalueindex(1));
    return 1;
}

/// The address of `type` is the value's key in the registry.
void pushSentinel(lua_State* L, char const* text, char const* type)
{
    luaL_checkstack(L, 6, nullptr);
    if (lua_rawgetp(L, LUA_REGISTRYINDEX, type) == LUA_TUSERDATA)
        return;
    lua_pop(L, 1);
    lua_newuserdatauv(L, 0, 0);
    pushNamedMetatable(L, type, [&] {
        setField(L, "__metatable", text);
        setField(L, "__name", text);
        lua_pushstring(L, text);
        lua_pushcclosure(L, sentinelText, 1);
        lua_setfield(L, -2, "__tostring");
    });
    lua_setmetatable(L, -2);
    lua_pushvalue(L, -1);
    lua_rawsetp(L, LUA_REGISTRYINDEX, type);
}

} // namespace

void pushNull(lua_State* L)
{
    pushSentinel(L, "null", nullType);
}

void pushMissing(lua_State* L)
{
    pushSentinel(L, "missing", missingType);
}

bool isNull(lua_State* L, int index)
{
    return luaL_testudata(L, index, nullType) != nullptr;
}

bool isMissing(lua_State* L, int index)
{
    return luaL_testudata(L, index, missingType) != nullptr;
}

} // namespace velmara::console
