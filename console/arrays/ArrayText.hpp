#pragma once

#include "lua/LuaApi.hpp"

#include "libhv/hvArray.hpp"

#include <string>

namespace velmara::console {

/// "3x4 double"
std::string sizeAndClass(hvArray_tag const* array);

/// The result of `tostring` for a host array: a single number, text or logical itself; else size and class,
/// followed by the first and last rows and columns, aligned, as many as fit the screen. Runs no code of
/// the script.
std::string arrayText(lua_State* L, hvArray_tag const& array);

} // namespace velmara::console
