#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// The values that stand for nothing where `nil` cannot, as elements of tables and arrays: `null` is an empty cell or
/// no object, `missing` an element of a string array that has no text.
enum class Nothing { Null, Missing };

void pushNothing(lua_State* L, Nothing which);
bool isNothing(lua_State* L, int index, Nothing which);

inline void pushNull(lua_State* L)
{
    pushNothing(L, Nothing::Null);
}

inline bool isNull(lua_State* L, int index)
{
    return isNothing(L, index, Nothing::Null);
}

inline void pushMissing(lua_State* L)
{
    pushNothing(L, Nothing::Missing);
}

inline bool isMissing(lua_State* L, int index)
{
    return isNothing(L, index, Nothing::Missing);
}

} // namespace velmara::console
