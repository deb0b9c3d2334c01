#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Binds the functions for rows of equally spaced doubles:
///
/// - `range(first, last [, step])`: from `first` on, with the step 1 or that given, as far as `last`
/// - `linspace(first, last, count)`: so many from `first` to `last`, both exact
void bindRanges(lua_State* L);

} // namespace velmara::console
