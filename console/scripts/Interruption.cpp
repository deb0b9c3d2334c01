#include "scripts/Interruption.hpp"

#include <csignal>

namespace velmara::console {

namespace {

// A signal handler is passed only the signal: what to stop is here.
lua_State* volatile script = nullptr;
lua_State* volatile running = nullptr; ///< the script, or the innermost of its coroutines
volatile std::sig_atomic_t isStopping = 0;

void stop(lua_State* L, lua_Debug*)
{
    if (L == script)
        isStopping = 0;
    lua_sethook(L, nullptr, 0, 0);
    luaL_error(L, "interrupted");
}

void stopSoon(lua_State* L)
{
    lua_sethook(L, stop, LUA_MASKCALL | LUA_MASKRET | LUA_MASKLINE | LUA_MASKCOUNT, 1);
}

void onSignal(int signal)
{
    std::signal(signal, SIG_DFL); // a second one ends the process
    isStopping = 1;
    stopSoon(running);
}

} // namespace

Interruption::Interruption(lua_State* L)
{
    script = L;
    running = L;
    isStopping = 0;
    previous_ = std::signal(SIGINT, onSignal);
}

Interruption::~Interruption()
{
    std::signal(SIGINT, previous_);
    lua_sethook(script, nullptr, 0, 0); // the script may have ended before the hook ran
    script = nullptr;
    running = nullptr;
}

Interruption::Resumption::Resumption(lua_State* resumer, lua_State* coroutine) : resumer_(resumer), previous_(running)
{
    if (script)
        running = coroutine;
}

Interruption::Resumption::~Resumption()
{
    running = previous_;
    if (isStopping && script)
        stopSoon(resumer_);
}

} // namespace velmara::console
