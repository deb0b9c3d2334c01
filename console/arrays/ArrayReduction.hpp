#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Methods of arrays of numbers and logicals, to be guarded: `sum`, `mean`, `min`, `max`, `any` and `all`. Of all
/// elements they return one value; with the dimension 1 a row, of each column, with 2 a column, of each row.
///
/// - `min` and `max` return where it is, too: its position among those elements, from 1 on. They pass over NaN.
///   Of no elements they return nil; an empty dimension stays empty.
/// - `sum` of integers is int64 or uint64, and so is that of logicals: an `Error` when it does not fit. Of no elements
///   it is 0, `mean` is NaN.
/// - NaN is not zero for `any` and `all`.
///
/// See NumberReduction.hpp.
int sumArray(lua_State* L);
int meanOfArray(lua_State* L);
int minOfArray(lua_State* L);
int maxOfArray(lua_State* L);
int isAnyNonzero(lua_State* L);
int areAllNonzero(lua_State* L);

} // namespace velmara::console
