#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Gives host arrays the methods `eq`, `ne`, `lt`, `le`, `gt` and `ge`, which compare element by element, and logical
/// arrays the operators & | ~ (both, either, one of both; not). The results are logical arrays.
///
/// Numbers of different classes are compared exactly. NaN differs from every number, and is neither less nor greater.
/// See ArrayOperands.hpp for what can stand beside an array.
void bindArrayComparison(lua_State* L);

} // namespace velmara::console
