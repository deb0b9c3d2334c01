#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Opens what an untrusted script may use of Lua's libraries: what computes, prints and gives the time; nothing that
/// reaches files, processes, modules, the collector's settings or the internals of values. An allow list: a function
/// that a later Lua adds to the base library or to `os` is not opened.
void openRestrictedLibraries(lua_State* L);

} // namespace velmara::console
