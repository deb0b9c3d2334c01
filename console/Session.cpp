#include "Session.hpp"

#include "ExitCode.hpp"
#include "Output.hpp"
#include "lua/ScriptError.hpp"
#include "scripts/Interruption.hpp"

#include "velmara/LiveCounts.hpp"

#include <cstdio>
#include <cstdlib>
#include <new>

namespace velmara::console {

namespace {

LuaState createState()
{
    if (lua_State* const L = luaL_newstate())
        return LuaState(L);
    throw std::bad_alloc();
}

/// `os.exit(code)`. Upvalue 1 is the session.
int exitProcess(lua_State* L)
{
    int code = exitSuccess;
    if (lua_isboolean(L, 1))
        code = lua_toboolean(L, 1) ? exitSuccess : exitScriptError;
    else
        code = static_cast<int>(luaL_optinteger(L, 1, exitSuccess));
    if (HostContext::of(L).isClosing())
        fail("ending", "os.exit: the script has ended already");
    std::exit(static_cast<Session*>(lua_touserdata(L, lua_upvalueindex(1)))->finish(code));
}

} // namespace

Session::Session(CommandLine const& line)
    : lua_(createState()),
      host_(lua_.get(), line.reportsLeaks),
      checksLeaks_(line.checksLeaks)
{
}

void Session::bindExit()
{
    lua_getglobal(lua(), LUA_OSLIBNAME);
    lua_pushlightuserdata(lua(), this);
    lua_pushcclosure(lua(), guarded<exitProcess>, 1);
    lua_setfield(lua(), -2, "exit");
    lua_pop(lua(), 1);
}

void Session::end()
{
    InterruptHandler::disable();
    host_.running() = lua_.get();
    if (lua_)
        lua_resetthread(lua_.get()); // closes `<close>` variables while everything still works
    host_.beginClosing();
    lua_.reset();
    host_.running() = nullptr;
    host_.clear();
}

int Session::finish(int code)
{
    bool const isComplete = !host_.isInCallback(); // else native code is never returned to, and leaves what it holds
    end();
    if (host_.hasFailed() && code == exitSuccess)
        code = exitScriptError;
    return finishOutput(isComplete && reportLeft() ? exitLeaks : code);
}

bool Session::reportLeft() const
{
    if (!checksLeaks_)
        return false;
    LiveCounts const left = liveCounts();
    if (left == LiveCounts{})
        return false;
    std::fprintf(
        stderr, "velmara: left at the end: %lld objects, %lld arrays, %lld class infos, %lld descriptors, %lld names\n",
        static_cast<long long>(left.objects), static_cast<long long>(left.arrays),
        static_cast<long long>(left.classInfos), static_cast<long long>(left.descriptors),
        static_cast<long long>(left.heldNames));
    return true;
}

} // namespace velmara::console
