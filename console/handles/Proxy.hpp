#pragma once

#include "lua/LuaApi.hpp"

#include <string_view>

namespace velmara::console {

/// What a script sees of packages and classes: an empty table that represents a dotted name. The name is looked up at
/// each use, so that a proxy kept beyond its package's end gives a clean error.

/// Has `complete` called with the metatable of each new proxy, the proxy, and its `NameRecord`, a light userdata: it
/// adds what a script does with them. See ProxyBinding.hpp.
void completeProxiesWith(lua_State* L, lua_CFunction complete);

/// Pushes the proxy of a name; one name has one proxy.
void pushProxy(lua_State* L, std::string_view fullName);

/// The name of the proxy at `index`; empty for any other value.
std::string_view proxyName(lua_State* L, int index);

} // namespace velmara::console
