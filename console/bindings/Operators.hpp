#pragma once

#include "lua/LuaApi.hpp"

#include <string_view>

namespace velmara::console {

/// Gives the objects of a class, whose metatable is on top of the stack, the operators of the language for which the
/// class has a member with a well-known name: `plus` for +, `text` for `tostring`, ... An object on the right of
/// another value is passed to a static method of that name. Two objects are equal if they are one object, or if
/// `equals` says so or, without it, the comparison of their class. Positive integers as keys read `item` and write
/// `setItem`.
void addOperators(lua_State* L, std::string_view className);

/// For keys that name no member: reads with `item`. Returns false, and pushes nothing, when the class has none.
bool readItem(lua_State* L, std::string_view className);

/// The same for writing, with `setItem`.
bool writeItem(lua_State* L, std::string_view className);

} // namespace velmara::console
