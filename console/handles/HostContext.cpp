#include "handles/HostContext.hpp"

#include "lua/ScriptError.hpp"
#include "lua/ScriptFrames.hpp"

#include <cstdio>

namespace velmara::console {

HostContext::HostContext(lua_State* L, bool reportsLeaks)
    : ChangeWatch([](lua_State* changed) { of(changed).answers().forget(changed); }),
      running_(L),
      reportsLeaks_(reportsLeaks),
      recordsLines_(reportsLeaks)
{
    addMachine(createMachine());
    attach(L);
}

std::unique_ptr<Hvm> HostContext::createMachine()
{
    auto machine = std::make_unique<Hvm>();
    machine->reportTerminations([this](std::string const& module, char const* reason) {
        std::fprintf(stderr, "velmara: module %s failed to terminate: %s\n", module.c_str(), reason);
        hasFailed_ = true;
    });
    if (reportsLeaks_)
        machine->reportLeaks(
            [](std::string const& leak) { std::fprintf(stderr, "velmara: leak: %s\n", leak.c_str()); });
    return machine;
}

void HostContext::addMachine(std::unique_ptr<Hvm> hvm)
{
    machines_.emplace_back(std::move(hvm), *this);
    watchMachine();
}

HostContext::Machine::Machine(std::unique_ptr<Hvm> created, HostContext& context) : hvm(std::move(created))
{
    if (context.recordsLines_)
        context.startRecording(*this);
}

void HostContext::startRecording(Machine& machine)
{
    machine.hvm->recordOrigins([this, function = lua_Debug()]() mutable -> Origin {
        if (running_ && findScriptFunction(running_, function))
            return {function.short_src, function.currentline};
        return {};
    });
    if (!machine.scope)
        machine.scope.emplace(*machine.hvm);
}

void HostContext::recordLines(bool isWanted)
{
    for (Machine& machine : machines_)
        if (isWanted) {
            startRecording(machine);
        } else {
            machine.scope.reset();
            machine.hvm->recordOrigins(nullptr);
        }
    recordsLines_ = isWanted;
}

void HostContext::reportLeft() noexcept
{
    try {
        for (SnapshotRow const& row : hvm().snapshot().rows)
            if (row.objects != 0) // modules keep arrays of their own until they are unloaded
                std::fprintf(stderr, "velmara: leak: objects of %s%s%s that native code still holds: %lld\n",
                             row.className.c_str(), row.origin.empty() ? "" : " from ", row.origin.c_str(),
                             static_cast<long long>(row.objects));
    } catch (Error const& error) {
        std::fprintf(stderr, "velmara: leak: what native code still holds cannot be told: %s\n", error.what());
    }
}

HostContext::FreshMachine::FreshMachine(HostContext& context) : context_(context)
{
    auto machine = context.createMachine();
    for (ModuleRecord const& module : context.hvm().modules())
        machine->loadModule(std::u8string(module.file.begin(), module.file.end()));
    context.addMachine(std::move(machine));
}

void HostContext::requireOpen() const
{
    if (isClosing_)
        fail("ending", "the script has ended: finalizers are given no objects and arrays any more");
}

void HostContext::clear()
{
    arrays_.shrink(0);
    heldArrays_.clear();
    while (!machines_.empty()) {
        if (reportsLeaks_ && !isInCallback()) // else native code still holds what it was called with
            reportLeft();
        machines_.pop_back();
    }
}

} // namespace velmara::console
