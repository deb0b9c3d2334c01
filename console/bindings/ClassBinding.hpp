#pragma once

#include "lua/LuaApi.hpp"

#include <string>

namespace velmara::console {

/// What a script does with a class by its name. Each function returns the number of values pushed, and throws an
/// `Error` for what the class does not have.

/// A new object from the Lua function's arguments 2 and on.
int construct(lua_State* L, std::string const& className);

/// A method as a function, or the value of a static property.
int readClassMember(lua_State* L, std::string const& className, std::string const& member);

/// Sets a static property to the Lua function's argument 3.
int writeClassMember(lua_State* L, std::string const& className, std::string const& member);

} // namespace velmara::console
