#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Parts of host arrays of every class, for Lua, to be guarded.

/// `a(rows, columns)`, `a(elements)`: a new array of those, see ArrayIndex.hpp; the element itself when whole numbers
/// name just one. Elements by position have the shape of the index; beside a vector, a vector of the same direction.
int callArray(lua_State* L);

/// `a:set(rows, columns, value)`, `a:set(elements, value)`: stores one value in all of them, or as many. Every value
/// must fit the class, otherwise the array stays as it was.
int setSlice(lua_State* L);

/// `a[elements]`, with the arguments of `__index`, and `a[elements] = value`, with those of `__newindex`.
int readSlice(lua_State* L);
int writeSlice(lua_State* L);

} // namespace velmara::console
