#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Has the global functions `load` and, where it is there, `loadfile` take text only: bytecode could break the process.
void limitLoadingToText(lua_State* L);

} // namespace velmara::console
