#include "handles/HostContext.hpp"

#include "lua/ScriptError.hpp"

#include <cstdio>

namespace velmara::console {

HostContext::HostContext(lua_State* L, bool reportsLeaks)
    : ChangeWatch([](lua_State* changed) { of(changed).answers().forget(changed); }),
      running_(L),
      reportsLeaks_(reportsLeaks)
{
    machines_.push_back(createMachine());
    watchMachine();
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

HostContext::FreshMachine::FreshMachine(HostContext& context) : context_(context)
{
    auto machine = context.createMachine();
    for (ModuleRecord const& module : context.hvm().modules())
        machine->loadModule(std::u8string(module.file.begin(), module.file.end()));
    context.machines_.push_back(std::move(machine));
    context.watchMachine();
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
    while (!machines_.empty())
        machines_.pop_back();
}

} // namespace velmara::console
