#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// For its lifetime Ctrl-C interrupts what runs instead of ending the process. Ctrl-C ends the process all the same
/// while the one before has had no effect: the script is in a function of native code, in one of Lua's own such as
/// `string.find`, or in a finalizer; and the third time, when native code has caught the error twice. One at a time;
/// leaves Ctrl-C alone where the process ignores it.
class InterruptHandler {
public:
    InterruptHandler();
    InterruptHandler(InterruptHandler const&) = delete;
    InterruptHandler& operator=(InterruptHandler const&) = delete;
    ~InterruptHandler();

    /// Whether Ctrl-C was pressed while no script ran, since `takeInterrupt` was called last, which returns the same.
    static bool hasInterrupt();
    static bool takeInterrupt();

    /// From now on Ctrl-C ends the process, also when a handler is alive. Call before its script's state is closed.
    static void disable();
};

/// For its lifetime a script runs in `L`: Ctrl-C raises the error "VELMARA:console:interrupted" in it. No function of
/// the script can keep that from ending the script; `<close>` variables are closed. One at a time.
class InterruptibleRun {
public:
    explicit InterruptibleRun(lua_State* L);
    InterruptibleRun(InterruptibleRun const&) = delete;
    InterruptibleRun& operator=(InterruptibleRun const&) = delete;
    ~InterruptibleRun();

    /// Whether the error was raised.
    static bool isInterrupted();
};

/// Interrupts the script that runs in `L`, as Ctrl-C does.
void interruptScript(lua_State* L);

/// For its lifetime the script waits for a coroutine of its own, and Ctrl-C interrupts that.
class Resumption {
public:
    explicit Resumption(lua_State* coroutine);
    Resumption(Resumption const&) = delete;
    Resumption& operator=(Resumption const&) = delete;
    ~Resumption();

private:
    lua_State* previous_;
};

/// What has caught an error calls these, so that the script does not run on after an interruption: at its beginning
/// `interruptCount`, and `checkInterrupt` with that number at its end, which raises the error again where there was an
/// interruption meanwhile. In functions that were begun after the interruption it does nothing: they close variables.
int interruptCount();
void checkInterrupt(lua_State* L, int countBefore);

} // namespace velmara::console
