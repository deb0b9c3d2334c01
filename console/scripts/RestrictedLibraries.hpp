#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Opens what a stranger's script may use of Lua's libraries: what computes, prints and tells the time, and nothing
/// that reaches files, processes, modules, the collector's settings or what stands behind Lua's values. What is not
/// named here is not there.
void openRestrictedLibraries(lua_State* L);

} // namespace velmara::console
