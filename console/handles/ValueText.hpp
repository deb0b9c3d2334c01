#pragma once

#include "lua/LuaApi.hpp"

#include <string>

namespace velmara::console {

/// The kind of the value at `index` for error texts: "a table", "a function", ...
std::string kindAt(lua_State* L, int index);

/// The same, but a number is written out: "300".
std::string valueText(lua_State* L, int index);

} // namespace velmara::console
