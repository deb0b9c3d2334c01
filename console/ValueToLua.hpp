#pragma once

#include "LuaApi.hpp"

#include "velmara/ArrayPtr.hpp"

namespace velmara::console {

/// Pushes the Lua value for a host array, which stays the caller's:
///
/// - a numeric scalar: a float for double and single, an integer for the integer classes; a logical one: a boolean
/// - a row of characters: a string in UTF-8
/// - an object: the object; an empty object array: nil
/// - a row: a sequence; an array with several rows, or with one column: a sequence of rows; an empty one: {}
/// - a cell array: likewise, never a scalar; an empty cell and nil in it: `null`
/// - uint64 values that no Lua integer holds, and any other class: a host array
void pushValue(lua_State* L, hvArray_tag const* array, int depth = 0);

} // namespace velmara::console
