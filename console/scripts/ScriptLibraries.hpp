#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Opens Lua's libraries without what could crash the process: code is loaded as text only, `require` finds scripts in
/// the system's folders only (not in the current one, whatever the environment says), native code comes only through
/// modules of the host, and of `debug` only `getinfo` and `traceback` are left.
void openScriptLibraries(lua_State* L);

/// Opens what an untrusted script may use of Lua's libraries: what computes, prints and gives the time; nothing that
/// reaches files, processes, modules, the collector's settings or the internals of values. An allow list: a function
/// that a later Lua adds to the base library or to `os` is not opened.
void openRestrictedLibraries(lua_State* L);

} // namespace velmara::console
