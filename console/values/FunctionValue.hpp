#pragma once

#include "lua/LuaApi.hpp"

#include "velmara/ArrayPtr.hpp"

namespace velmara::console {

/// Functions that cross between scripts and the host.

/// A new function array for the Lua function at `index`. The host may call it while the virtual machine in use is
/// current. It runs as a part of the coroutine that has called the host, which it cannot yield.
ArrayPtr functionToHost(lua_State* L, int index);

/// Pushes a Lua function for the function that the array holds.
void pushFunction(lua_State* L, hvArray_tag const& array);

} // namespace velmara::console
