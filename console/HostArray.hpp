#pragma once

#include "LuaApi.hpp"

#include "velmara/ArrayPtr.hpp"

namespace velmara::console {

/// Host arrays that no Lua value stands for: a value of their own in scripts, passed back as they are.

/// Pushes the array; it is the script's from then on.
void pushHostArray(lua_State* L, ArrayPtr array);

/// The array at `index`, or null when there is none.
hvArray_tag* testHostArray(lua_State* L, int index);

/// The value `null`: it stands for nothing where `nil` cannot, as an element of a table.
void pushNull(lua_State* L);
bool isNull(lua_State* L, int index);

} // namespace velmara::console
