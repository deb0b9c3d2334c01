#pragma once

#include "lua/LuaApi.hpp"

#include "velmara/ArrayPtr.hpp"

#include <cstddef>
#include <string_view>

namespace velmara::console {

/// Host objects in scripts: a value that holds the object in a 1-by-1 array of the object's own class. It gives the
/// object back when it goes out of use, is collected, or is closed as a `<close>` variable.

/// Pushes the object at a zero-based index of an object array; nil for a null element.
void pushObject(lua_State* L, hvArray_tag const* array, std::size_t index);

bool isObject(lua_State* L, int index);

/// The array of the object at `index`; it stays the script's. Throws an `Error` when there is no object, or when it
/// was given back.
hvArray_tag* checkObject(lua_State* L, int index);

/// The class of the object at `index`, also when it was given back; valid while the object is on the stack.
std::string_view objectClass(lua_State* L, int index);

/// False for an object that has ended or was given back.
bool isValidObject(lua_State* L, int index);

} // namespace velmara::console
