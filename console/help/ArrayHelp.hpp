#pragma once

#include "arrays/ArrayMethods.hpp"

#include <string>

namespace velmara::console {

/// "Methods:" with those of all host arrays, in 80 columns.
std::string arrayMethodsText();

/// The method of arrays that the function at `index` is; null for other values.
ArrayMethod const* arrayMethodAt(lua_State* L, int index);

} // namespace velmara::console
