#pragma once

#include "lua/LuaApi.hpp"

#include <cstddef>
#include <string>
#include <vector>

namespace velmara::console {

/// A running function of the script.
struct ScriptFrame {
    std::string position; ///< "FILE:LINE"
    std::string function; ///< its name where it has one
};

/// Finds source and line of the innermost running function of the script; false when none runs. Uses no memory, and
/// throws nothing.
bool findScriptFunction(lua_State* L, lua_Debug& function);

/// The position of the innermost running function of the script; empty when none runs.
std::string scriptPosition(lua_State* L);

/// The script's running functions from `level` on, innermost first and at most `maxFrames`. C functions are omitted.
std::vector<ScriptFrame> scriptFrames(lua_State* L, int level, std::size_t maxFrames);

} // namespace velmara::console
