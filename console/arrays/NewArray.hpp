#pragma once

#include "arrays/ArrayClass.hpp"
#include "arrays/Shape.hpp"
#include "lua/LuaApi.hpp"
#include "values/Conversion.hpp"

#include "velmara/ArrayPtr.hpp"

namespace velmara::console {

/// The number of `what`, "rows" or "columns", at `index`. Throws an `Error` for anything but a whole number from 0 on.
std::size_t checkSize(lua_State* L, int index, char const* what);

/// A new array of zeros, false, empty cells, missing strings or null objects. Throws an `Error` when it would take more
/// than one array of a script may.
ArrayPtr newArray(lua_State* L, ArrayClass const& arrayClass, Shape shape, Conversion& conversion);

/// The same of a numeric or logical class.
ArrayPtr newMatrix(hvClassID classID, Shape shape);

} // namespace velmara::console
