#include "lua/ScriptFrames.hpp"

namespace velmara::console {

namespace {

std::string positionOf(lua_Debug const& function)
{
    return std::string(function.short_src) + ':' + std::to_string(function.currentline);
}

} // namespace

bool findScriptFunction(lua_State* L, lua_Debug& function)
{
    for (int level = 0; lua_getstack(L, level, &function); ++level)
        if (lua_getinfo(L, "Sl", &function) != 0 && function.currentline > 0)
            return true;
    return false;
}

std::string scriptPosition(lua_State* L)
{
    lua_Debug function;
    return findScriptFunction(L, function) ? positionOf(function) : std::string();
}

std::vector<ScriptFrame> scriptFrames(lua_State* L, int level, std::size_t maxFrames)
{
    std::vector<ScriptFrame> frames;
    lua_Debug function;
    for (; frames.size() < maxFrames && lua_getstack(L, level, &function); ++level) {
        lua_getinfo(L, "Sln", &function);
        if (function.currentline > 0)
            frames.push_back({positionOf(function), function.name ? function.name : ""});
    }
    return frames;
}

} // namespace velmara::console
