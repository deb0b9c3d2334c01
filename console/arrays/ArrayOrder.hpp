#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Methods of arrays of numbers and logicals, to be guarded:
///
/// - `sort([dimension] [, "descending"])`: their elements in order; NaN is last
/// - `order([dimension] [, "descending"])`: the positions of the elements in that order, which keeps that of equal ones
/// - `find()`: the positions of the elements that are not zero: a row of a row, else a column
int sortArray(lua_State* L);
int orderArray(lua_State* L);
int findNonzero(lua_State* L);

} // namespace velmara::console
