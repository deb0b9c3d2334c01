#pragma once

#include "lua/LuaApi.hpp"

#include "libhv/hvArray.hpp"

#include <cstddef>
#include <string_view>

namespace velmara::console {

/// Host objects in scripts: a value that holds the object in a 1-by-1 array of the object's own class. It releases the
/// object when it is collected, or closed as a `<close>` variable; the object then gets another value when it crosses
/// again. Until then it has one: table keys and `rawequal` agree with ==.

/// Pushes the object at a zero-based index of an object array; nil for a null element. Needs room for 10 values on the
/// stack.
void pushObject(lua_State* L, hvArray_tag const* array, std::size_t index);

/// Has `complete` called with the metatable and the name of each class whose first object is pushed from now on: it
/// gives the class's objects their members. See ObjectBinding.hpp.
void completeMetatablesWith(lua_State* L, lua_CFunction complete);

/// Has `describe` called for the text of an object that is valid and no enumerator: it is given the object, and returns
/// the text. Without it that is "CLASS object".
void describeObjectsWith(lua_State* L, lua_CFunction describe);

bool isObject(lua_State* L, int index);

/// The array of the object at `index`; it stays the script's. Throws an `Error` when there is no object, or when it
/// was released.
hvArray_tag* checkObject(lua_State* L, int index);

/// The same; null when there is no object.
hvArray_tag* testObject(lua_State* L, int index);

/// The class of the object at `index`, also when it was released; valid while the object is on the stack.
std::string_view objectClass(lua_State* L, int index);

/// False for an object that was destroyed or released.
bool isValidObject(lua_State* L, int index);

} // namespace velmara::console
