#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Gives host arrays the operators + - * / // % ^ and unary -, element by element. See ArrayOperands.hpp for what can
/// stand beside an array.
///
/// The result has the class of both sides; an integer class goes before single, that before double; logicals are
/// doubles. Two integer classes are refused, and so is an integer result that does not fit its class: the `Error` names
/// the element. See NumberArithmetic.hpp for the rounding.
void bindArrayArithmetic(lua_State* L);

} // namespace velmara::console
