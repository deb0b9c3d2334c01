#pragma once

#include "lua/LuaApi.hpp"

#include <string>
#include <string_view>

namespace velmara::console {

/// The picture that Graphviz makes of its text as SVG. Throws an `Error` when it is not installed, and when it fails.
std::string svgText(lua_State* L, std::string_view dot);

} // namespace velmara::console
