#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// For its lifetime Ctrl-C makes the running script fail instead of ending the process. One at a time.
class Interruption {
public:
    explicit Interruption(lua_State* L);
    Interruption(Interruption const&) = delete;
    Interruption& operator=(Interruption const&) = delete;
    ~Interruption();

    /// For its lifetime `resumer` waits for a coroutine, and Ctrl-C reaches that. The interruption is raised again in
    /// the resumer when the coroutine has failed.
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
