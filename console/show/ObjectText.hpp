#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// Has `tostring` of an object, without a text of its author's, give its class and first properties in one line:
/// "calc.Adder (total = 3.0)". A property that cannot be read is "?", and the line always comes.
void bindObjectText(lua_State* L);

} // namespace velmara::console
