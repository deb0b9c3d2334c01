#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Binds `each(list, f)`, which calls f(element, index) for each element and shows its progress, and `time(f, ...)`,
/// which returns the seconds that a call took, and its results.
void bindTimedCalls(lua_State* L);

} // namespace velmara::console
