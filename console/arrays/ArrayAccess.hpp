#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Gives host arrays what a script does with them:
///
/// - `array[k]`: the k-th element in column order, `array[{i, j}]` that of row i and column j; nil outside the array.
///   Both can be set inside the array.
/// - `array(rows, columns)`, `array[index]` with an array: see ArraySlices.hpp; `array:method()`: see ArrayMethods.hpp
/// - `#array`: the number of elements; `pairs(array)`, and so `ipairs`: all of them in column order
/// - `a == b`: one class, one size, and all elements the same, numbers and text bit for bit
/// - `tostring(array)`: see ArrayText.hpp
void bindArrayAccess(lua_State* L);

} // namespace velmara::console
