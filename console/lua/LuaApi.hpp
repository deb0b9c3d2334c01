#pragma once

// Lua compiled as C++: its errors are C++ exceptions and unwind C++ frames. Its headers declare the linkage themselves,
// so there is no `extern "C"` around them.
#include <lua.h>

#include <lauxlib.h>
#include <lualib.h>

#include <memory>
#include <string_view>

namespace velmara::console {

struct LuaCloser {
    void operator()(lua_State* L) const { lua_close(L); }
};

/// A Lua state with its owner.
using LuaState = std::unique_ptr<lua_State, LuaCloser>;

inline void pushText(lua_State* L, std::string_view text)
{
    lua_pushlstring(L, text.data(), text.size());
}

/// The text of the value at `index`, which is a string; valid while that is on the stack.
inline std::string_view stringValue(lua_State* L, int index)
{
    std::size_t length = 0;
    char const* const text = lua_tolstring(L, index, &length);
    return {text, length};
}

/// The same; empty for anything but a string.
inline std::string_view textAt(lua_State* L, int index)
{
    return lua_type(L, index) == LUA_TSTRING ? stringValue(L, index) : std::string_view();
}

} // namespace velmara::console
