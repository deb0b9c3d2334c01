#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Gives host arrays of numbers and logicals:
///
/// - `sort([dimension] [, "descending"])`: their elements in order; NaN is last
/// - `order([dimension] [, "descending"])`: the positions of the elements in that order, which keeps that of equal ones
/// - `find()`: the positions of the elements that are not zero: a row of a row, else a column
void bindArrayOrder(lua_State* L);

} // namespace velmara::console
