#pragma once

#include "lua/LuaApi.hpp"

#include <string>

namespace velmara::console {

/// The text with which the prompt shows a result: a plain table with its content, in one line where that fits; else the
/// result of `tostring`.
std::string displayText(lua_State* L, int index);

} // namespace velmara::console
