#pragma once

#include "lua/LuaApi.hpp"

#include "libhv/hvArray.hpp"

#include "velmara/ArrayPtr.hpp"

namespace velmara::console {

/// Gives host arrays of every class the methods `reshape(rows, columns)`, the same elements in column order, where one
/// of the two may be nil; and `transpose()`.
void bindArrayForms(lua_State* L);

/// A new array with rows and columns exchanged.
ArrayPtr transposed(lua_State* L, hvArray_tag const& array);

} // namespace velmara::console
