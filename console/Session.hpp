#pragma once

#include "handles/HostContext.hpp"
#include "lua/LuaApi.hpp"

namespace velmara::console {

/// One run of the console: a Lua state and what it uses of the host. They end in the one order in which every host
/// object is released before its virtual machine is destroyed.
class Session {
public:
    Session();
    Session(Session const&) = delete;
    Session& operator=(Session const&) = delete;
    ~Session() { end(); }

    lua_State* lua() const { return lua_.get(); }
    HostContext& host() { return host_; }

    /// Lets the script end the session and the process with `os.exit`, in the library `os` as it is.
    void bindExit();

    /// Closes the Lua state, then destroys the virtual machines. Done once; safe inside a running script that is never
    /// returned to.
    void end();

    /// Asks for a check at the end of the run that nothing of the host is left.
    void checkLeaks() { checksLeaks_ = true; }

    /// Has what native code leaves in a virtual machine reported on stderr as that ends. To be asked for before modules
    /// are loaded.
    void reportLeaks() { host_.reportLeaks(); }

    /// Ends the session and gives the exit code: `code`, or that of what went wrong beside it: a module that fails at
    /// the end, leaks where they are checked, lost output.
    int finish(int code);

private:
    /// Reports what is left of the host, where that was asked for.
    bool reportLeft() const;

    LuaState lua_;
    HostContext host_;
    bool checksLeaks_ = false;
};

} // namespace velmara::console
