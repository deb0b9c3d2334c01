#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// A table in a state's registry, created when it is first pushed.
class RegistryTable {
public:
    /// `mode` is its `__mode`, which says what in it is weak; null for a table that keeps all.
    explicit RegistryTable(char const* mode = nullptr) : mode_(mode) {}

    void push(lua_State* L)
    {
        if (reference_ == LUA_NOREF) [[unlikely]]
            create(L);
        lua_rawgeti(L, LUA_REGISTRYINDEX, reference_);
    }

private:
    void create(lua_State* L);

    char const* mode_;
    int reference_ = LUA_NOREF;
};

} // namespace velmara::console
