#pragma once

#include "lua/LuaApi.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace velmara::console {

/// Loads a chunk of text and pushes its function, or the error when it does not compile. Returns Lua's status.
/// `chunkName` has Lua's form: "@FILE", "=NAME".
int loadScript(lua_State* L, std::string_view code, std::string const& chunkName);

/// Calls the function below `arguments` values and pushes its results. On failure prints the report to stderr, pushes
/// nothing and returns false.
bool callScript(lua_State* L, int arguments);

/// Loads and calls a chunk with the arguments in `...` and `arg`; `name` is `arg[0]`. On failure prints the report and
/// returns false.
bool runScript(lua_State* L, std::string_view code, std::string const& chunkName, std::string const& name,
               std::vector<std::string> const& arguments);

/// The content of the file, or of standard input for "-". Throws `std::system_error` when it cannot be read.
std::string readScript(std::string const& file);

} // namespace velmara::console
