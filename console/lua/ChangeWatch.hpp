#pragma once

#include "lua/LuaApi.hpp"

#include <cstdint>
#include <cstring>

namespace velmara::console {

/// A number outside of Lua on which values of the script depend. After each function of the console it is compared, and
/// when it has changed these are brought up to date before the script goes on.
struct ChangeWatch {
    using Update = void (*)(lua_State* L);

    explicit ChangeWatch(Update updateValues) : update(updateValues) {}

    /// That of a Lua state or of one of its coroutines: their extra space points to it.
    static ChangeWatch& of(lua_State* L)
    {
        ChangeWatch* watch = nullptr;
        std::memcpy(&watch, lua_getextraspace(L), sizeof watch);
        return *watch;
    }

    /// Makes this the watch of the state, a main thread; coroutines that are created later inherit it.
    void attach(lua_State* L)
    {
        ChangeWatch* self = this;
        std::memcpy(lua_getextraspace(L), &self, sizeof self);
    }

    /// Call also before a function of the script is called from native code.
    static void check(lua_State* L)
    {
        ChangeWatch& watch = of(L);
        if (*watch.number != watch.seen) [[unlikely]] {
            watch.seen = *watch.number;
            watch.update(L);
        }
    }

    std::uint64_t const* number = nullptr; ///< set before any function runs
    std::uint64_t seen = 0;
    Update update;
};

} // namespace velmara::console
