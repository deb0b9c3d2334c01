#pragma once

#include "lua/LuaApi.hpp"

#include <string_view>

namespace velmara::console {

/// What a script sees of packages and classes: an empty table that represents a dotted name. The name is looked up at
/// each use, so that a proxy kept beyond its package's end gives a clean error.

/// Pushes the metatable of all proxies. What a script does with them is added to it: see ProxyBinding.hpp.
void pushProxyMetatable(lua_State* L);

/// Pushes the proxy of a name; one name has one proxy.
void pushProxy(lua_State* L, std::string_view fullName);

/// The name of the proxy at `index`; empty for any other value.
std::string_view proxyName(lua_State* L, int index);

} // namespace velmara::console
