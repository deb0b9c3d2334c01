#pragma once

#include "lua/LuaApi.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace velmara::console {

/// Loads a chunk of text. Gives Lua's status, and pushes the function, or the error when the chunk does not compile.
/// `chunkName` as Lua has it: "@FILE", "=NAME".
int loadScript(lua_State* L, std::string_view code, std::string const& chunkName);

/// Calls the function below `arguments` values; what it gives is pushed. On failure the report is printed to
/// stderr and nothing pushed.
bool callScript(lua_State* L, int arguments);

/// Loads and calls a chunk with the arguments in `...` and `arg`; `name` is `arg[0]`. Prints the report of a failure.
bool runScript(lua_State* L, std::string_view code, std::string const& chunkName, std::string const& name,
               std::vector<std::string> const& arguments);

/// The file's content, or that of standard input for "-". Throws `std::system_error` with
/// the system's reason when it cannot be read.
std::string readScript(std::string const& file);

} // namespace velmara::console
