#pragma once

#include "lua/LuaApi.hpp"
#include "values/Conversion.hpp"

#include "velmara/Value.hpp"

#include "libhv/hvArray.hpp"

namespace velmara::console {

/// Pushes the Lua value for the result of a call, or for the array of a cell. The array stays the caller's.
///
/// - one number: a float for double and single, an integer for the integer classes, a host array for a uint64
///   beyond Lua's integers; one logical: a boolean
/// - doubles and logicals: a sequence for one row, else a sequence of rows; for 0-by-0 doubles {}
/// - a row of characters, or 0-by-0: a string in UTF-8, each lone surrogate as U+FFFD
/// - one object: the object; a null one, or none 0-by-0: nil; no array: nil
/// - a function: a Lua function, the script's own where it is that
/// - anything else: a host array
///
/// By its shape: a list of objects is a host array also when it has one element or none, and an absent optional value
/// is nil.
///
/// An array that becomes a table or a string is the same array again when that is passed to the host.
void pushValue(lua_State* L, hvArray_tag const* array, ValueShape shape = ValueShape::Plain);

/// Pushes the array as tables, strings and scalars throughout: a sequence for a row, and for a column of strings, cells
/// or objects; else a sequence of rows, which are strings for characters. A single element, unless a cell, is pushed
/// itself.
void pushContent(lua_State* L, hvArray_tag const& array, Conversion& conversion);

} // namespace velmara::console
