#pragma once

#include "lua/LuaApi.hpp"

#include "velmara/Listing.hpp"

#include <string>
#include <vector>

namespace velmara::console {

/// `pairs(object)`, as a function for Lua: names and values of the properties that can be read, in the order in which
/// they are published. Each is read when its turn comes.
int iterateProperties(lua_State* L);

/// Pushes what `pairs` returns for the value at 1: an iteration over these names and what it has by them. Returns their
/// number.
int iterateNames(lua_State* L, std::vector<std::string> const& names);

/// The same over names and tables of the members of a class, see MemberRecords.hpp. An overloaded name comes several
/// times.
int iterateMembers(lua_State* L, ClassRecord const& cls);

} // namespace velmara::console
