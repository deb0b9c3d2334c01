#pragma once

#include "lua/LuaApi.hpp"

#include <string_view>

namespace velmara::console {

/// What a script sees of packages and classes: an empty table that stands for a dotted name. The name is looked up
/// at each use, so that a proxy kept over the end of its package gives a clean error.

/// Pushes the proxy of a name; one name has one proxy.
void pushProxy(lua_State* L, std::string_view fullName);

/// The name that the proxy at `index` stands for; empty for any other value.
std::string_view proxyName(lua_State* L, int index);

} // namespace velmara::console
