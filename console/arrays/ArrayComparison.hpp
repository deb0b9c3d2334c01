#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Methods of host arrays, to be guarded: `eq`, `ne`, `lt`, `le`, `gt` and `ge` compare element by element. The results
/// are logical arrays.
///
/// Numbers of different classes are compared exactly. NaN differs from every number, and is neither less nor greater.
/// See ArrayOperands.hpp for what can stand beside an array.
int compareEqual(lua_State* L);
int compareDifferent(lua_State* L);
int compareLess(lua_State* L);
int compareLessOrEqual(lua_State* L);
int compareGreater(lua_State* L);
int compareGreaterOrEqual(lua_State* L);

/// Gives logical arrays the operators & | ~ (both, either, one of both; not).
void bindLogicalOperators(lua_State* L);

} // namespace velmara::console
