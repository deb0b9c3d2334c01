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

private:
    void (*previous_)(int);
};

/// Replaces `coroutine.resume` and `coroutine.wrap` by functions that let Ctrl-C reach a coroutine.
void bindCoroutineFunctions(lua_State* L);

} // namespace velmara::console
