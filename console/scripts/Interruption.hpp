#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// While this lives, Ctrl-C makes the running script fail and leaves the console alive. One at a time.
class Interruption {
public:
    explicit Interruption(lua_State* L);
    Interruption(Interruption const&) = delete;
    Interruption& operator=(Interruption const&) = delete;
    ~Interruption();

    /// While this lives, `resumer` waits for a coroutine, which is what Ctrl-C reaches. The failure then goes on from
    /// one to the other.
    class Resumption {
    public:
        Resumption(lua_State* resumer, lua_State* coroutine);
        Resumption(Resumption const&) = delete;
        Resumption& operator=(Resumption const&) = delete;
        ~Resumption();

    private:
        lua_State* resumer_;
        lua_State* previous_;
    };

private:
    void (*previous_)(int);
};

} // namespace velmara::console
