#pragma once

#include "handles/ArrayStack.hpp"
#include "handles/GivenArrays.hpp"
#include "lua/LuaApi.hpp"

#include "velmara/Hvm.hpp"

#include <memory>
#include <string>
#include <vector>

namespace velmara::console {

/// One run of the console: a Lua state, the virtual machines that its script uses, and the host arrays on their way
/// between the two or held by the script. They end in the one order in which every host object is given back before its
/// machine ends.
class Session {
public:
    Session();
    Session(Session const&) = delete;
    Session& operator=(Session const&) = delete;
    ~Session() { end(); }

    /// The session that a Lua state, or one of its coroutines, belongs to.
    static Session& of(lua_State* L);

    lua_State* lua() const { return lua_.get(); }
    ArrayStack& arrays() { return arrays_; }
    GivenArrays& given() { return given_; }

    /// The virtual machine in use: the innermost one.
    Hvm& hvm() { return *machines_.back(); }

    /// Set for the next crossing: its result stays an array of the host.
    bool& keepsNextArray() { return keepsNextArray_; }

    /// While this lives a fresh virtual machine with the same modules is in use.
    class FreshMachine {
    public:
        explicit FreshMachine(Session& session);
        FreshMachine(FreshMachine const&) = delete;
        FreshMachine& operator=(FreshMachine const&) = delete;
        ~FreshMachine() { session_.machines_.pop_back(); }

    private:
        Session& session_;
    };

    /// True once the session has begun to end: only finalizers of the script run from then on.
    bool isEnding() const { return !lua_; }

    /// To be called before the script is given something of the host: throws an `Error` once the session is ending,
    /// as Lua would not finalize it any more.
    void requireRunning() const;

    /// Closes the Lua state, then ends the machines. Done once; safe inside a running script that is never
    /// returned to.
    void end();

    /// Asks for a check at the end of the run that nothing of the host is left.
    void checkLeaks() { checksLeaks_ = true; }

    /// Has what native code leaves in a virtual machine reported on stderr as that ends. To be asked for before modules
    /// are loaded.
    void reportLeaks();

    /// Ends the session and gives the exit code: `code`, or that of what went wrong beside it: a module that fails at
    /// the end, leaks where they are checked, lost output.
    int finish(int code);

private:
    /// A virtual machine that reports what goes wrong at its end.
    std::unique_ptr<Hvm> makeMachine();

    /// Reports what is left of the host, where that was asked for.
    bool findLeaks() const;

    std::vector<std::unique_ptr<Hvm>> machines_;
    ArrayStack arrays_;
    GivenArrays given_;
    LuaState lua_;
    bool hasFailed_ = false; ///< a module did, at the end of its virtual machine
    bool checksLeaks_ = false;
    bool reportsLeaks_ = false;
    bool keepsNextArray_ = false;
};

} // namespace velmara::console
