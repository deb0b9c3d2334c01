#pragma once

#include "lua/LuaApi.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace velmara::console {

/// What the name at the end of the text before the cursor may become, sorted: keywords, globals, packages and classes,
/// or the members of what is before the last "." or ":". Of a call there, these are the members of the class that its
/// function is published to return. Runs no code of the script and reads no property. Empty on failure.
std::vector<std::string> completions(lua_State* L, std::string_view text);

/// The signatures of the function of which the next argument is to come at the end of the text, for `paragraph`; empty
/// when that is something else or not known.
std::vector<std::string> signaturesAt(lua_State* L, std::string_view text);

/// The common start of the names, of which there is at least one.
std::string commonStart(std::vector<std::string> const& names);

} // namespace velmara::console
