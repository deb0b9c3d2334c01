#include "Interruption.hpp"

#include <csignal>

namespace velmara::console {

namespace {

// A signal handler is told nothing but the signal: the state to stop stands here.
lua_State* volatile interrupted = nullptr;

void stop(lua_State* L, lua_Debug*)
{
    lua_sethook(L, nullptr, 0, 0);
    luaL_error(L, "interrupted");
}

void onSignal(int signal)
{
    std::signal(signal, SIG_DFL); // a second one ends the process
    lua_sethook(interrupted, stop, LUA_MASKCALL | LUA_MASKRET | LUA_MASKLINE | LUA_MASKCOUNT, 1);
}

} // namespace

Interruption::Interruption(lua_State* L)
{
    interrupted = L;
    previous_ = std::signal(SIGINT, onSignal);
}

Interruption::~Interruption()
{
    std::signal(SIGINT, previous_);
    interrupted = nullptr;
}

} // namespace velmara::console
