#pragma once

#include "lua/LuaApi.hpp"

#include "libhv/hvArray.hpp"

#include <string>

namespace velmara::console {

/// What `tostring` gives for a host array: a number, a text or a truth value itself where it is only one, else size and
/// class, and below them the first rows and columns, aligned. Runs no code of the script.
std::string arrayText(lua_State* L, hvArray_tag const& array);

} // namespace velmara::console
