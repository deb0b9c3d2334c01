#pragma once

#include "handles/Member.hpp"
#include "lua/LuaApi.hpp"

namespace velmara::console {

/// `f{second = 2, first = 1}` as `f(1, 2)`: when the arguments from `first` on are one table whose keys are all texts,
/// and which has no metatable, replaces it by its values, in the order of the parameters of that form of the callable
/// that has these names. Optional parameters may be missing. Throws an `Error` when there is no such form, or when
/// several have the names in another order.
///
/// Does nothing for a callable that has a form of one input whose type may take such a table: for that one it is a
/// value.
void spreadNamedArguments(lua_State* L, int first, Member& callable);

/// The same for the constructors of a class.
void spreadConstructorArguments(lua_State* L, int first, Member& constructors);

} // namespace velmara::console
