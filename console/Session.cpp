#include "Session.hpp"

#include "ExitCode.hpp"
#include "Output.hpp"
#include "lua/ScriptError.hpp"

#include "velmara/LiveCounts.hpp"

#include <cstdio>
#include <cstring>
#include <new>

namespace velmara::console {

namespace {

void reportLeaksOf(Hvm& machine)
{
    machine.reportLeaks([](std::string const& leak) { std::fprintf(stderr, "velmara: leak: %s\n", leak.c_str()); });
}

} // namespace

Session::Session() : lua_(luaL_newstate())
{
    if (!lua_)
        throw std::bad_alloc();
    machines_.push_back(makeMachine());
    // Lua copies this space of the main thread into every coroutine.
    Session* self = this;
    std::memcpy(lua_getextraspace(lua_.get()), &self, sizeof self);
}

Session& Session::of(lua_State* L)
{
    Session* session = nullptr;
    std::memcpy(&session, lua_getextraspace(L), sizeof session);
    return *session;
}

std::unique_ptr<Hvm> Session::makeMachine()
{
    auto machine = std::make_unique<Hvm>();
    machine->reportTerminations([this](std::string const& module, char const* reason) {
        std::fprintf(stderr, "velmara: module %s failed to terminate: %s\n", module.c_str(), reason);
        hasFailed_ = true;
    });
    if (reportsLeaks_)
        reportLeaksOf(*machine);
    return machine;
}

Session::FreshMachine::FreshMachine(Session& session) : session_(session)
{
    auto machine = session.makeMachine();
    for (ModuleRecord const& module : session.hvm().modules())
        machine->loadModule(std::u8string(module.file.begin(), module.file.end()));
    session.machines_.push_back(std::move(machine));
}

void Session::requireRunning() const
{
    if (isEnding())
        fail("ending", "the script has ended: finalizers are given no objects and arrays any more");
}

void Session::end()
{
    if (lua_)
        lua_resetthread(lua_.get()); // variables to be closed, while all still works
    lua_.reset();
    arrays_.shrink(0);
    given_.clear();
    while (!machines_.empty())
        machines_.pop_back();
}

void Session::reportLeaks()
{
    reportsLeaks_ = true;
    for (auto const& machine : machines_)
        reportLeaksOf(*machine);
}

int Session::finish(int code)
{
    end();
    if (hasFailed_ && code == exitSuccess)
        code = exitScriptError;
    return finishOutput(findLeaks() ? exitLeaks : code);
}

bool Session::findLeaks() const
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
