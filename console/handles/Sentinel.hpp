#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// The values that mean nothing where `nil` cannot, as elements of tables and arrays: `null` is an empty cell or no
/// object, `missing` an element of a string array that has no text.
enum class Sentinel { Null, Missing };

void pushSentinel(lua_State* L, Sentinel which);
bool isSentinel(lua_State* L, int index, Sentinel which);

inline void pushNull(lua_State* L)
{
    pushSentinel(L, Sentinel::Null);
}

inline bool isNull(lua_State* L, int index)
{
    return isSentinel(L, index, Sentinel::Null);
}

inline void pushMissing(lua_State* L)
{
    pushSentinel(L, Sentinel::Missing);
}

inline bool isMissing(lua_State* L, int index)
{
    return isSentinel(L, index, Sentinel::Missing);
}

} // namespace velmara::console
