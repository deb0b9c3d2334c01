#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Opens Lua's libraries, without the few functions with which a script could break the process: code is loaded as
/// text only, `require` finds scripts in the system's folders and not in the current one whatever the environment says,
/// native code comes only through modules of the host, and `debug` keeps what looks and loses what changes.
void openScriptLibraries(lua_State* L);

} // namespace velmara::console
