#pragma once

#include "lua/LuaApi.hpp"
#include "values/Conversion.hpp"

#include "libhv/hvArray.hpp"

namespace velmara::console {

/// Pushes the Lua value for the result of a call, or for the array of a cell, which stays the caller's:
///
/// - one number: a float for double and single, an integer for the integer classes, a host array for a uint64 that is
///   none; one logical: a boolean
/// - doubles and logicals: a sequence for one row, else a sequence of rows; for 0-by-0 doubles {}
/// - a row of characters, or 0-by-0: a string in UTF-8, each lone surrogate as U+FFFD
/// - one object: the object; a null one, or none 0-by-0: nil; no array: nil
/// - anything else: a host array
///
/// So what becomes a table or a string is the same array when it is passed on again.
void pushValue(lua_State* L, hvArray_tag const* array);

/// Pushes tables, strings and scalars for all that is in the array: a sequence for a row, and for a column of strings,
/// cells or objects; else a sequence of rows, which are strings for characters. A single element, but not a cell,
/// stands for itself.
void pushContent(lua_State* L, hvArray_tag const& array, Conversion& conversion);

} // namespace velmara::console
