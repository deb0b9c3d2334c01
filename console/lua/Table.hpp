#pragma once

#include "lua/LuaApi.hpp"

#include <algorithm>
#include <concepts>
#include <limits>
#include <string>

namespace velmara::console {

/// Sets a field of the table on top of the stack to a function, truth value, integer or text.
template <class T>
void setField(lua_State* L, char const* name, T const& value)
{
    if constexpr (std::convertible_to<T, lua_CFunction>)
        lua_pushcfunction(L, value);
    else if constexpr (std::same_as<T, bool>)
        lua_pushboolean(L, value);
    else if constexpr (std::integral<T>)
        lua_pushinteger(L, value);
    else
        pushText(L, value);
    lua_setfield(L, -2, name);
}

/// The text of a field of the table at `table`, without metamethods; empty when the field has none.
inline std::string fieldText(lua_State* L, int table, char const* name)
{
    table = lua_absindex(L, table);
    lua_pushstring(L, name);
    lua_rawget(L, table);
    std::string text(textAt(L, -1));
    lua_pop(L, 1);
    return text;
}

/// Calls `visit(0)` to `visit(count - 1)` with one element after the other of the sequence at the absolute `table` on
/// top of the stack.
template <class Visit>
void visitSequence(lua_State* L, int table, std::size_t count, Visit const& visit)
{
    for (std::size_t i = 0; i < count; ++i) {
        lua_rawgeti(L, table, static_cast<lua_Integer>(i + 1));
        visit(i);
        lua_pop(L, 1);
    }
}

/// Pushes a sequence of what `pushAt(0)` to `pushAt(count - 1)` push.
template <class PushAt>
void pushSequence(lua_State* L, std::size_t count, PushAt const& pushAt)
{
    luaL_checkstack(L, 4, nullptr);
    lua_createtable(L, static_cast<int>(std::min<std::size_t>(count, std::numeric_limits<int>::max())), 0);
    for (std::size_t i = 0; i < count; ++i) {
        pushAt(i);
        lua_rawseti(L, -2, static_cast<lua_Integer>(i + 1));
    }
}

/// Replaces the table on top by one of only the fields of those names.
template <std::size_t Count>
void selectFields(lua_State* L, char const* const (&names)[Count])
{
    lua_createtable(L, 0, Count);
    for (char const* name : names) {
        lua_getfield(L, -2, name);
        lua_setfield(L, -2, name);
    }
    lua_remove(L, -2);
}

} // namespace velmara::console
