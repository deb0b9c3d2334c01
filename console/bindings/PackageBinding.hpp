#pragma once

#include "lua/LuaApi.hpp"

#include "velmara/Listing.hpp"

#include <string>
#include <vector>

namespace velmara::console {

/// Pushes the metatable of the proxies of packages and classes.
void pushPackageMetatable(lua_State* L);

/// The names, without the package's own, of all that a package holds.
std::vector<std::string> packageContents(PackageRecord const& package);

/// Makes the top-level packages, classes and functions readable as globals. A global of the script's own of that
/// name goes first.
void bindGlobals(lua_State* L);

} // namespace velmara::console
