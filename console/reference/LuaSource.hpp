#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "velmara/Listing.hpp"

namespace velmara::console {

/// Whether Lua takes the text for a name as it stands: an identifier that is no keyword.
bool isLuaName(std::string_view text);

/// The text as a Lua string, in double quotes.
std::string luaString(std::string_view text);

/// `owner.name`, or `owner["name"]` where the name is no Lua name; without an owner that of a global.
std::string luaIndex(std::string_view owner, std::string_view name);

/// The full name of a package or class as an expression.
std::string luaPath(std::string_view fullName);

/// A Lua name for each parameter: its own where that is one, and all are different.
std::vector<std::string> luaParameters(std::span<ParameterRecord const> parameters);

/// The text as lines of comment, none of which is taken for an annotation.
std::string luaComment(std::string_view text);

/// The same without breaks, for the end of an annotation.
std::string annotationText(std::string_view text);

} // namespace velmara::console
