#pragma once

#include "lua/LuaApi.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace velmara::console {

/// What the word at the prompt may become, sorted: keywords, globals, packages, classes, and the members of what
/// stands before the last "." or ":". Runs no code of the script and reads no property. Nothing where it fails.
std::vector<std::string> completions(lua_State* L, std::string_view word);

/// What all of the names, at least one, begin with.
std::string commonStart(std::vector<std::string> const& names);

} // namespace velmara::console
