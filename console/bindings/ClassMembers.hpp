#pragma once

#include "handles/Member.hpp"
#include "lua/LuaApi.hpp"

#include <string>
#include <string_view>

namespace velmara::console {

/// Finds the member `name` of a class. Pushes the function of a callable one, which takes the object first, or none for
/// a static method; pushes nothing for a property or an enumerator. Results are kept: see PublishedAnswers.hpp.
///
/// Throws an `Error` that names what is missing, and what comes close to it.
MemberKind pushMember(lua_State* L, std::string_view className, std::string_view name);

/// Pushes the function of a member that was callable when it was found last, also when it is not published any more:
/// what reads it of an object that is not valid any more gets its error from the call. False, and nothing pushed, for
/// others.
bool pushFormerCallable(lua_State* L, std::string_view className, std::string_view name);

/// The kind of the member `name`, `Property` or `StaticProperty`. Throws an `Error` when it is no property.
MemberKind checkProperty(lua_State* L, std::string_view className, std::string_view name);

/// Pushes what is kept of the class: a table with a function under the name of each callable member that was found, and
/// the `Member`, a light userdata, under those of others.
void pushMemberCache(lua_State* L, std::string_view className);

/// Pushes the function that calls the package function of that full name.
void pushPackageFunction(lua_State* L, std::string_view fullName);

/// The full name ("PACKAGE.CLASS.MEMBER") that the function at `index` calls, when it was pushed by one of the above;
/// empty for any other value.
std::string calledName(lua_State* L, int index);

} // namespace velmara::console
