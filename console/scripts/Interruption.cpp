#include "scripts/Interruption.hpp"

#include "lua/ScriptError.hpp"
#include "lua/ScriptFailure.hpp"

#include <csignal>
#include <cstdio>

namespace velmara::console {

namespace {

using Handler = void (*)(int);

/// How many instructions a script may still run to close its variables before it is interrupted again: some seconds.
constexpr int closingInstructions = 100'000'000;

// A signal handler is passed only the signal: what to interrupt is here.
lua_State* volatile running = nullptr;      ///< the script, or the innermost of its coroutines
volatile std::sig_atomic_t isRequested = 0; ///< Ctrl-C was pressed, and has had no effect yet
volatile std::sig_atomic_t raisedCount = 0; ///< how many times it had an effect on the running script
Handler previousHandler = SIG_DFL;

lua_State* script = nullptr;

char const errorKey = 0; // its address is the key of the latest interruption's error in the registry

/// Pushes the error of the latest interruption; a new one where there was no memory or stack to create it before.
void pushInterruption(lua_State* L)
{
    if (lua_rawgetp(L, LUA_REGISTRYINDEX, &errorKey) != LUA_TNIL)
        return;
    lua_pop(L, 1);
    pushError(L, interruptionIdentifier, "Ctrl-C was pressed");
    recordFailure(L, -1, scriptFrames(L, 0, maxFailureFrames));
    lua_pushvalue(L, -1);
    lua_rawsetp(L, LUA_REGISTRYINDEX, &errorKey);
}

int raiseError(lua_State* L)
{
    pushInterruption(L);
    return raised;
}

void interrupt(lua_State* L, lua_Debug*)
{
    bool const isLate = !script || (!isRequested && raisedCount == 0); // a coroutine that was left before it fired
    isRequested = 0;
    lua_sethook(L, isLate ? nullptr : interrupt, isLate ? 0 : LUA_MASKCOUNT, closingInstructions);
    if (isLate)
        return;
    raisedCount = raisedCount + 1;
    lua_pushcfunction(L, guarded<raiseError>);
    lua_call(L, 0, 0);
}

void interruptSoon(lua_State* L)
{
    lua_sethook(L, interrupt, LUA_MASKCALL | LUA_MASKRET | LUA_MASKLINE | LUA_MASKCOUNT, 1);
}

#if defined(_WIN32)

Handler setHandler(Handler handler)
{
    return std::signal(SIGINT, handler);
}

#else

/// What waits for input is to return: no system call is restarted.
Handler setHandler(Handler handler)
{
    struct sigaction action = {};
    struct sigaction previous = {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, &previous);
    return previous.sa_handler;
}

#endif

void onSignal(int signal)
{
    bool const isStuck = running && (isRequested || raisedCount > 1);
    setHandler(isStuck ? SIG_DFL : onSignal); // on Windows it was reset
    if (isStuck) {
        std::raise(signal);
        return;
    }
    isRequested = 1;
    if (running)
        interruptSoon(running);
}

} // namespace

InterruptHandler::InterruptHandler()
{
    previousHandler = setHandler(onSignal);
    if (previousHandler == SIG_IGN)
        setHandler(SIG_IGN);
}

InterruptHandler::~InterruptHandler()
{
    setHandler(previousHandler);
}

bool InterruptHandler::hasInterrupt()
{
    return isRequested != 0;
}

bool InterruptHandler::takeInterrupt()
{
    bool const isTaken = hasInterrupt();
    isRequested = 0;
    return isTaken;
}

void InterruptHandler::disable()
{
    running = nullptr;
    if (script && previousHandler != SIG_IGN)
        setHandler(SIG_DFL);
    script = nullptr;
}

InterruptibleRun::InterruptibleRun(lua_State* L)
{
    raisedCount = 0;
    script = L;
    running = L;
    if (isRequested)
        interruptSoon(L);
}

InterruptibleRun::~InterruptibleRun()
{
    running = nullptr;
    isRequested = 0;
    if (!script)
        return;
    lua_sethook(script, nullptr, 0, 0); // it may have ended before the hook ran
    if (raisedCount > 0)
        std::clearerr(stdout); // Ctrl-C also ends the writing of what nobody reads
    lua_pushnil(script);
    lua_rawsetp(script, LUA_REGISTRYINDEX, &errorKey);
    script = nullptr;
}

bool InterruptibleRun::isInterrupted()
{
    return raisedCount > 0;
}

void interruptScript(lua_State* L)
{
    isRequested = 1;
    interruptSoon(L);
}

Resumption::Resumption(lua_State* coroutine) : previous_(running)
{
    if (running)
        running = coroutine;
}

Resumption::~Resumption()
{
    running = previous_;
    if (isRequested && previous_)
        interruptSoon(previous_); // the coroutine was left before it could be interrupted
}

int interruptCount()
{
    return raisedCount;
}

void checkInterrupt(lua_State* L, int countBefore)
{
    if (raisedCount == countBefore)
        return;
    guarded<raiseError>(L);
}

} // namespace velmara::console
