#pragma once

#include "lua/LuaApi.hpp"

#include "velmara/Listing.hpp"

#include <string>
#include <vector>

namespace velmara::console {

/// "Adder" for "package.Adder".
std::string unqualifiedName(std::string const& fullName);

/// The unqualified names of all packages, classes and functions in the package, each once, by the alphabet.
std::vector<std::string> packageContents(PackageRecord const& package);

/// Gives the proxies of packages and classes their members, and makes what is published at the top level readable as
/// globals. A global of the script's own of the same name takes precedence.
void bindPublishedNames(lua_State* L);

} // namespace velmara::console
