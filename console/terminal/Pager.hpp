#pragma once

#include "lua/LuaApi.hpp"

#include <string_view>

namespace velmara::console {

/// From now on `printPaged` stops at each full screen, if standard input and output are a terminal.
void enablePaging(lua_State* L);

/// Prints the text to standard output. At a terminal where paging is enabled, it stops at each full screen for a key:
/// Space shows the next one, Enter the next line, "a" all that is left, "q" and Ctrl-C nothing more.
void printPaged(lua_State* L, std::string_view text);

} // namespace velmara::console
