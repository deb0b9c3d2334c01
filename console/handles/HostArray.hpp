#pragma once

#include "lua/LuaApi.hpp"

#include "velmara/ArrayPtr.hpp"

#include "libhv/hvArray.hpp"

#include <cstddef>

namespace velmara::console {

/// Host arrays as values of their own in scripts: they have class, size and elements, and are passed back as they are.

/// Pushes the metatable of all host arrays. What a script does with them is added to it: see ArrayAccess.hpp.
void pushArrayMetatable(lua_State* L);

/// Pushes a copy of the array that shares its data until one side is written to. May run finalizers of the script: the
/// array's memory, which Lua does not see, is reported to the garbage collector.
void pushHostArray(lua_State* L, hvArray_tag const& array);

/// Lets the collector go on by the memory of an array, of which Lua counts a few bytes: unused ones would be collected
/// far too late. May run finalizers of the script.
void stepCollector(lua_State* L, hvArray_tag const& array);

/// Has the value at `index`, which holds an array, hold another one from now on.
void replaceHostArray(lua_State* L, int index, ArrayPtr array) noexcept;

bool isHostArray(lua_State* L, int index);

/// The array at `index`; null when there is none, or it was released.
hvArray_tag* testHostArray(lua_State* L, int index);

/// The same, but throws an `Error` instead of returning null.
hvArray_tag* checkHostArray(lua_State* L, int index);

/// Approximate memory of one element of any class, with what it owns.
std::size_t memoryOfElement(hvClassID classID);

} // namespace velmara::console
