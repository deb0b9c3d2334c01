#pragma once

#include "lua/LuaApi.hpp"

#include "velmara/Listing.hpp"

#include <span>
#include <string>
#include <vector>

namespace velmara::console {

/// Whether a script may use the member, and is told of it.
bool isListed(MethodRecord const& method);
bool isListed(PropertyRecord const& property);

/// Whether a script can read the property.
bool isReadable(PropertyRecord const& property);

/// The names of the listed members, without constructors.
std::vector<std::string> memberNames(ClassRecord const& cls);

/// The inputs that a script passes: without the object that a method is called on.
std::span<ParameterRecord const> parametersOf(MethodRecord const& method);

/// Pushes a sequence of tables, one for each listed member, with the fields `name`, `kind` ("constructor", "method",
/// "static method", "property", "enumerator"), `class` (that defines it), `text`, `attributes` (a table with `true`
/// under the name of each); of what is called `parameters` (a sequence of tables with `name`, `type` and `optional`)
/// and `results` (a sequence of types); of a property `type`, of an enumerator `value`.
void pushMembers(lua_State* L, ClassRecord const& cls);

/// The same of a package: `kind` is "package", "class" or "function".
void pushMembers(lua_State* L, PackageRecord const& package);

} // namespace velmara::console
