#include "handles/Nothing.hpp"

#include "lua/NamedMetatable.hpp"

namespace velmara::console {

namespace {

/// What a script sees, and the name of the value's type.
struct Names {
    char const* text;
    char const* type;
};

constexpr Names names[] = {{"null", "velmara.null"}, {"missing", "velmara.missing"}};

/// Upvalue 1 is the text.
int toText(lua_State* L)
{
    lua_pushvalue(L, lua_upvalueindex(1));
    return 1;
}

char const valueKeys[2] = {}; // their addresses are the keys of the values

void makeNothing(lua_State* L, Names const& made)
{
    lua_newuserdatauv(L, 0, 0);
    pushNamedMetatable(L, made.type, [&] {
        lua_pushstring(L, made.text);
        lua_pushvalue(L, -1);
        lua_setfield(L, -3, "__metatable");
        lua_pushvalue(L, -1);
        lua_setfield(L, -3, "__name");
        lua_pushcclosure(L, toText, 1);
        lua_setfield(L, -2, "__tostring");
    });
    lua_setmetatable(L, -2);
}

} // namespace

void pushNothing(lua_State* L, Nothing which)
{
    luaL_checkstack(L, 6, nullptr);
    char const* const key = &valueKeys[static_cast<int>(which)];
    if (lua_rawgetp(L, LUA_REGISTRYINDEX, key) == LUA_TUSERDATA)
        return;
    lua_pop(L, 1);
    makeNothing(L, names[static_cast<int>(which)]);
    lua_pushvalue(L, -1);
    lua_rawsetp(L, LUA_REGISTRYINDEX, key);
}

bool isNothing(lua_State* L, int index, Nothing which)
{
    return luaL_testudata(L, index, names[static_cast<int>(which)].type) != nullptr;
}

} // namespace velmara::console
