#pragma once

#include "lua/LuaApi.hpp"
#include "values/Conversion.hpp"

#include "libhv/hvArray.hpp"

#include <cstddef>

namespace velmara::console {

/// Pushes the element at a zero-based linear index:
///
/// - of numbers: a float for double and single, else an integer; a uint64 beyond Lua's integers: a 1-by-1 host array
/// - of logicals: a boolean; of characters: a string of that one UTF-16 unit
/// - of strings: a string or `missing`
/// - of a function array: the function
/// - of cells: see `pushValue`, but `null` instead of nil; of objects: the object or `null`
void pushElement(lua_State* L, hvArray_tag const* array, std::size_t index);

/// Stores the Lua value at `value` at a zero-based linear index of the array; data shared with other arrays is copied
/// first. Throws an `Error` that names the element, which stays as it was, when the value does not fit its class
/// exactly.
void storeElement(lua_State* L, int value, hvArray_tag* array, std::size_t index, Conversion& conversion);

} // namespace velmara::console
