#include "api/HvmState.hpp"

#include "velmara/Error.hpp"
#include "velmara/Hvm.hpp"

#include "classes/PackageTree.hpp"
#include "errors/hostError.hpp"
#include "modules/ModuleList.hpp"
#include "types/TypeRepository.hpp"

#include "additions/ObjectObserver.hpp"

#include <utility>

namespace velmara {

constinit thread_local HvmState* HvmState::current_ = nullptr;

HvmState::HvmState()
    : modules_(std::make_unique<ModuleList>()),
      types_(std::make_unique<TypeRepository>()),
      packages_(std::make_unique<PackageTree>(*this))
{
    Error::outOfMemory(); // made while there is memory
}

HvmState::~HvmState()
{
    HvmState* const previous = makeCurrent(this);
    isEnding_ = true;
    {
        Entry const entry(*this);
        packages_->endAllObjects();
        modules_->terminateAll(terminationReport_);
        packages_->clear();
    }
    isStorageActive_ = false;
    observer_ = nullptr;
    storage_.clear();
    packages_->clear(); // what deleters may have published
    types_->clear();
    makeCurrent(previous == this ? nullptr : previous);
    Hvm::Scope::forget(*this);
}

HvmState& HvmState::required()
{
    if (!current_)
        throwHostError("VELMARA:hvm", "noVirtualMachine");
    return *current_;
}

void HvmState::reportLeak(char const* sentence) const noexcept
{
    try {
        if (leakReport_)
            leakReport_(sentence);
    } catch (...) {
    }
}

void HvmState::retire(std::unique_ptr<Retirable> unpublished) noexcept
{
    if (unpublished)
        retired_.add(std::move(unpublished));
    if (entries_ == 0)
        retired_.destroyAll();
}

void HvmState::passCallBoundary() noexcept
{
    if (entries_ != 0 || !observer_)
        return;
    isBoundaryRequested_ = false;
    Entry const entry(*this);
    observer_->callBoundary();
}

} // namespace velmara
