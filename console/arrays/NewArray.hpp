#pragma once

#include "arrays/ArrayClass.hpp"
#include "arrays/Shape.hpp"
#include "lua/LuaApi.hpp"
#include "values/Conversion.hpp"

#include "velmara/ArrayPtr.hpp"

namespace velmara::console {

/// A new array of zeros, false, empty cells, missing strings or null objects. Throws an `Error` when it would take more
/// than one array of a script may.
ArrayPtr newArray(lua_State* L, ArrayClass const& arrayClass, Shape shape, Conversion& conversion);

/// The same of a numeric or logical class.
ArrayPtr newMatrix(hvClassID classID, Shape shape);

} // namespace velmara::console
