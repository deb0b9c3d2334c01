#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// What a script does with a host array: functions for Lua, to be guarded.

/// `array[k]` for its k-th element in column order, `array[{i, j}]` for row i and column j; nil outside the array.
int readArray(lua_State* L);

/// Sets an element in the same way; refused outside the array.
int writeArray(lua_State* L);

/// `#array`: the number of elements.
int countElements(lua_State* L);

/// `pairs(array)`: all elements in column order. `ipairs` does the same.
int iterateArray(lua_State* L);

/// `a == b`: one class, one size, and all elements the same, numbers and text bit for bit.
int compareArrays(lua_State* L);

} // namespace velmara::console
