#pragma once

#include "LuaApi.hpp"

namespace velmara::console {

/// While this lives, Ctrl-C makes the running script fail and leaves the console alive. One at a time.
class Interruption {
public:
    explicit Interruption(lua_State* L);
    Interruption(Interruption const&) = delete;
    Interruption& operator=(Interruption const&) = delete;
    ~Interruption();

private:
    void (*previous_)(int);
};

} // namespace velmara::console
