#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// `array(class, values, rows, columns)` as a function for Lua, to be guarded: pushes a new host array of exactly that
/// class.
///
/// - values: one value, a sequence (a row), a sequence of sequences of one length (a matrix), a host array (its size),
///   nothing (0-by-0); for "char" a text, or a sequence of texts of one length, each a row; for "cell" a sequence is
///   always a row, of any values
/// - with rows and columns: the values in column order, as many as there is room for; or one value for all elements
///
/// Every value must fit the class exactly. See ArrayElement.hpp.
int createArray(lua_State* L);

} // namespace velmara::console
