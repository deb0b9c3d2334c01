#pragma once

#include "lua/LuaApi.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace velmara::console {

/// The completions of a word at the prompt, sorted: keywords, globals, packages and classes, or the members of what is
/// before the last "." or ":". Runs no code of the script and reads no property. Empty on failure.
std::vector<std::string> completions(lua_State* L, std::string_view word);

/// The common start of the names, of which there is at least one.
std::string commonStart(std::vector<std::string> const& names);

} // namespace velmara::console
