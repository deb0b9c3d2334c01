#pragma once

#include "CommandLine.hpp"
#include "handles/HostContext.hpp"
#include "lua/LuaApi.hpp"

namespace velmara::console {

/// One run of the console: a Lua state and what it uses of the host, destroyed in the one order in which every host
/// object is released before its virtual machine.
class Session {
public:
    /// Takes from the command line whether leaks are reported and checked.
    explicit Session(CommandLine const& line = {});
    Session(Session const&) = delete;
    Session& operator=(Session const&) = delete;
    ~Session() { end(); }

    lua_State* lua() const { return lua_.get(); }
    HostContext& host() { return host_; }

    /// Replaces `os.exit` by one that ends the session before the process.
    void bindExit();

    /// Closes the Lua state, then destroys the virtual machines; later calls do nothing. Safe inside a running script
    /// that is never returned to.
    void end();

    /// Ends the session and returns the exit code: `code`, or that of what went wrong besides: a module that failed to
    /// terminate, leaks where they are checked, lost output.
    int finish(int code);

private:
    /// Reports what is left of the host, where that is to be checked; true when there is something.
    bool reportLeft() const;

    LuaState lua_;
    HostContext host_;
    bool checksLeaks_;
};

} // namespace velmara::console
