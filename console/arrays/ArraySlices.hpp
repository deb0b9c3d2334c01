#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Gives host arrays of every class:
///
/// - `a(rows, columns)`, `a(elements)`: a new array of those, see ArrayIndex.hpp; the element itself when whole numbers
///   name just one. Elements by position have the shape of the index; beside a vector, a vector of the same direction.
/// - `a:set(rows, columns, value)`, `a:set(elements, value)`: stores one value in all of them, or as many. Every value
///   must fit the class, otherwise the array stays as it was. When memory runs out amid strings or cells, those that
///   were stored before stay.
/// - `a[index]` with an array as the index: the same as `a(index)`, and likewise for writing
void bindArraySlices(lua_State* L);

/// The same for a metamethod: reads `a[index]`, with the array as argument 1 and the index as argument 2.
int readSlice(lua_State* L);

/// Stores argument 3.
int writeSlice(lua_State* L);

} // namespace velmara::console
