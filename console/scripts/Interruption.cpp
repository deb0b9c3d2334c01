#include "scripts/Interruption.hpp"

#include "lua/WrappedFunction.hpp"

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

/// For its lifetime `resumer` waits for a coroutine, and Ctrl-C reaches that. The interruption is raised again in the
/// resumer when the coroutine has failed.
class Resumption {
public:
    Resumption(lua_State* resumer, lua_State* coroutine) : resumer_(resumer), previous_(running)
    {
        if (script)
            running = coroutine;
    }
    Resumption(Resumption const&) = delete;
    Resumption& operator=(Resumption const&) = delete;
    ~Resumption()
    {
        running = previous_;
        if (isStopping && script)
            stopSoon(resumer_);
    }

private:
    lua_State* resumer_;
    lua_State* previous_;
};

/// Calls upvalue 1 with all arguments; meanwhile Ctrl-C reaches `coroutine`.
int callWhileRunning(lua_State* L, lua_State* coroutine)
{
    luaL_checkstack(L, 4, nullptr);
    Resumption const resumption(L, coroutine ? coroutine : L);
    return callWrapped(L);
}

int resume(lua_State* L)
{
    return callWhileRunning(L, lua_tothread(L, 1));
}

/// Upvalue 1 is the result of Lua's own `wrap`, whose upvalue 1 is the coroutine.
int callCoroutine(lua_State* L)
{
    lua_State* coroutine = nullptr;
    if (lua_getupvalue(L, lua_upvalueindex(1), 1)) {
        coroutine = lua_tothread(L, -1);
        lua_pop(L, 1); // the function still holds it
    }
    return callWhileRunning(L, coroutine);
}

int wrap(lua_State* L)
{
    callWrapped(L);
    lua_pushcclosure(L, callCoroutine, 1);
    return 1;
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

void bindCoroutineFunctions(lua_State* L)
{
    lua_getglobal(L, LUA_COLIBNAME);
    wrapFunction(L, "resume", resume);
    wrapFunction(L, "wrap", wrap);
    lua_pop(L, 1);
}

} // namespace velmara::console
