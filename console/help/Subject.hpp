#pragma once

#include "lua/LuaApi.hpp"

#include "velmara/Hvm.hpp"

#include <string>

namespace velmara::console {

/// The dotted name that the value at `index` has or means: of a package, a class, an object's class or a function of
/// the host; a string is a name itself. Empty for other values.
std::string subjectOf(lua_State* L, int index);

/// Throws an `Error` that says that nothing is published as `name`, and which names come close.
[[noreturn]] void failUnknownSubject(lua_State* L, std::string const& name);

/// "; did you mean calc.Adder?": what is published or global and comes close to a name, or is in a package without its
/// being named; empty for none.
std::string closeNames(lua_State* L, std::string const& name);

} // namespace velmara::console
