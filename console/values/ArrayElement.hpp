#pragma once

#include "lua/LuaApi.hpp"
#include "values/Conversion.hpp"

#include "libhv/hvArray.hpp"

#include <cstddef>

namespace velmara::console {

/// Pushes the element at a zero-based linear index:
///
/// - of numbers: a float for double and single, else an integer; a uint64 that is none: a 1-by-1 host array
/// - of logicals: a boolean; of characters: a string of that one UTF-16 unit
/// - of strings: a string or `missing`
/// - of cells: what a call gives for the cell's array, `null` for an empty one; of objects: the object or `null`
void pushElement(lua_State* L, hvArray_tag const* array, std::size_t index);

/// Stores the Lua value at `value` in a zero-based linear index of an array that is of no other owner. Throws an
/// `Error` that names the element when the value does not fit its class exactly, and leaves it as it was.
void storeElement(lua_State* L, int value, hvArray_tag* array, std::size_t index, Conversion& conversion);

} // namespace velmara::console
