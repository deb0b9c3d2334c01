#include "lua/ScriptFrames.hpp"

namespace velmara::console {

std::vector<ScriptFrame> scriptFrames(lua_State* L, int level, std::size_t maxFrames)
{
    std::vector<ScriptFrame> frames;
    lua_Debug function;
    for (; frames.size() < maxFrames && lua_getstack(L, level, &function); ++level) {
        lua_getinfo(L, "Sln", &function);
        if (function.currentline <= 0)
            continue;
        frames.push_back({std::string(function.short_src) + ':' + std::to_string(function.currentline),
                          function.name ? function.name : ""});
    }
    return frames;
}

} // namespace velmara::console
