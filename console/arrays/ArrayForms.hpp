#pragma once

#include "lua/LuaApi.hpp"

#include "libhv/hvArray.hpp"

#include "velmara/ArrayPtr.hpp"

namespace velmara::console {

/// Methods of arrays of every class, to be guarded: `reshape(rows, columns)`, the same elements in column order, where
/// one of the two may be nil; and `transpose()`.
int reshapeArray(lua_State* L);
int transposeArray(lua_State* L);

/// A new array with rows and columns exchanged.
ArrayPtr transposed(lua_State* L, hvArray_tag const& array);

} // namespace velmara::console
