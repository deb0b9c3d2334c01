#pragma once

#include "lua/LuaApi.hpp"

#include "libhv/hvArray.hpp"

namespace velmara::console {

/// Host arrays as values of their own in scripts: they have class, size and elements, and are passed back as they are.

/// Pushes the metatable of all host arrays. What a script does with them is added to it: see ArrayAccess.hpp.
void pushArrayMetatable(lua_State* L);

/// Pushes a copy of the array that shares its data until one side is written to. Memory that Lua does not know of makes
/// it collect what is out of use, so finalizers of the script may run.
void pushHostArray(lua_State* L, hvArray_tag const& array);

bool isHostArray(lua_State* L, int index);

/// The array at `index`, or null when there is none, or it was given back.
hvArray_tag* testHostArray(lua_State* L, int index);

/// The same; throws an `Error` in place of null.
hvArray_tag* checkHostArray(lua_State* L, int index);

} // namespace velmara::console
