#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Along what an operation goes.
enum class Dimension {
    All,     ///< all elements, in column order
    Columns, ///< 1: down each column
    Rows     ///< 2: along each row
};

/// The dimension at `index`, all for none or nil. Throws an `Error` for anything else.
Dimension checkDimension(lua_State* L, int index);

} // namespace velmara::console
