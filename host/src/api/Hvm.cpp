#include "velmara/Hvm.hpp"

#include "api/HvmCall.hpp"
#include "api/HvmState.hpp"

#include <utility>

namespace velmara {

Hvm::Hvm() : state_(std::make_unique<HvmState>()) {}

Hvm::~Hvm() = default;

void Hvm::reportLeaks(std::function<void(std::string const&)> report)
{
    state_->setLeakReport(std::move(report));
}

void Hvm::reportTerminations(std::function<void(std::string const&, char const*)> report)
{
    state_->setTerminationReport(std::move(report));
}

namespace {
constinit thread_local Hvm::Scope* innermost = nullptr;
} // namespace

Hvm::Scope::Scope(Hvm& hvm)
    : previous_(static_cast<HvmState*>(Machine::makeCurrent(hvm.state_.get()))),
      outer_(std::exchange(innermost, this))
{
    hvm.state_->watchThread();
}

Hvm::Scope::~Scope()
{
    Machine::makeCurrent(previous_);
    Scope** inner = &innermost; // mostly this one, but they may be destroyed in any order
    while (*inner != this)
        inner = &(*inner)->outer_;
    *inner = outer_;
}

void Hvm::Scope::forget(HvmState const& ended)
{
    for (Scope* scope = innermost; scope; scope = scope->outer_)
        if (scope->previous_ == &ended)
            scope->previous_ = nullptr;
}

ModuleRecord Hvm::loadModule(std::filesystem::path const& file)
{
    return callInto(*state_, [&] { return state_->modules().load(file).record(); });
}

void Hvm::unloadModule(std::string_view name)
{
    callInto(*state_, [&] { state_->modules().unload(name); });
}

std::vector<ModuleRecord> Hvm::modules() const
{
    return callInto(*state_, [&] { return state_->modules().records(); });
}

} // namespace velmara
