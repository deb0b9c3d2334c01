#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Limits the global functions `load` and, where present, `loadfile` to text: crafted bytecode can crash the process.
void limitLoadingToText(lua_State* L);

} // namespace velmara::console
