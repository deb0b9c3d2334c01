#pragma once

#include "lua/LuaApi.hpp"

#include <string>
#include <string_view>

namespace velmara::console {

/// The message handler of script calls: turns the error value into the text to show, "identifier: text" followed by the
/// positions in the script.
int reportError(lua_State* L);

/// The text to show for the error value at `index` where no handler has seen the error: `status` is that of `lua_load`
/// or `lua_pcall`.
std::string describeError(lua_State* L, int index, int status);

/// Prints the text to stderr, after what was printed to stdout before. At a terminal its identifier is coloured.
void printReport(std::string_view text);

} // namespace velmara::console
