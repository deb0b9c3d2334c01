#include "handles/Sentinel.hpp"

#include "lua/CachedValue.hpp"
#include "lua/Table.hpp"

namespace velmara::console {

namespace {

/// What a script sees, and the name of the value's type.
struct SentinelNames {
    char const* text;
    char const* type;
};

constexpr SentinelNames sentinelNames[] = {{"null", "velmara.null"}, {"missing", "velmara.missing"}};

/// Upvalue 1 is the text.
int sentinelText(lua_State* L)
{
    lua_pushvalue(L, lua_upvalueindex(1));
    return 1;
}

void createSentinel(lua_State* L, SentinelNames const& created)
{
    lua_newuserdatauv(L, 0, 0);
    pushNamedMetatable(L, created.type, [&] {
        setField(L, "__metatable", created.text);
        setField(L, "__name", created.text);
        lua_pushstring(L, created.text);
        lua_pushcclosure(L, sentinelText, 1);
        lua_setfield(L, -2, "__tostring");
    });
    lua_setmetatable(L, -2);
}

} // namespace

void pushSentinel(lua_State* L, Sentinel which)
{
    luaL_checkstack(L, 8, nullptr);
    SentinelNames const& created = sentinelNames[static_cast<int>(which)];
    pushCached(L, "velmara.sentinels", created.text, [&] { createSentinel(L, created); });
}

bool isSentinel(lua_State* L, int index, Sentinel which)
{
    return luaL_testudata(L, index, sentinelNames[static_cast<int>(which)].type) != nullptr;
}

} // namespace velmara::console
