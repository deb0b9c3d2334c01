#pragma once

#include "lua/LuaApi.hpp"

#include <string_view>

namespace velmara::console {

enum class MemberKind { Callable, Property, StaticProperty, Enumerator };

/// Finds the member `name` of a class. For a callable one, its function is pushed: it takes the object first, or
/// none for a static method; for a property and an enumerator nothing. What is found once is remembered for the Lua
/// state: whether it is still there is for the host to say at each use.
///
/// Throws an `Error` that names what is missing, and what comes close to it.
MemberKind pushMember(lua_State* L, std::string_view className, std::string_view name);

/// Whether the property `name` of a class is static. Throws an `Error` when it is no property.
MemberKind checkProperty(lua_State* L, std::string_view className, std::string_view name);

/// Pushes the table of what is remembered of the class: a function under the name of each callable member.
void pushRememberedMembers(lua_State* L, std::string_view className);

/// Pushes the function that calls the package function of that full name.
void pushPackageFunction(lua_State* L, std::string_view fullName);

/// What a function pushed by one of the above calls: its full name ("PACKAGE.CLASS.MEMBER" for a member), or
/// empty for any other value.
std::string_view calledName(lua_State* L, int index);

} // namespace velmara::console
