#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// `pairs(object)`, as a function for Lua: names and values of the properties that can be read, in the order in which
/// they are published. Each is read when its turn comes.
int iterateProperties(lua_State* L);

/// `pairs(class)`, for a class that is no enumeration: names and tables of its members, see MemberRecords.hpp. An
/// overloaded name comes several times.
int iterateMembers(lua_State* L);

} // namespace velmara::console
