#pragma once

#include "classes/PackageTree.hpp"
#include "machine/Machine.hpp"
#include "modules/ModuleList.hpp"
#include "objects/DeferredFinalizer.hpp"
#include "types/TypeRepository.hpp"

namespace velmara {

/// A base of its own, so that the modules' code is unloaded last.
struct LoadedModules {
    ModuleList modules;
};

/// What an Hvm owns: everything that belongs to one virtual machine.
class HvmState final : private LoadedModules, public Machine {
public:
    HvmState();

    /// Finalizes the objects, terminates the modules, removes packages and classes, then clears storage and types,
    /// and unloads the modules' libraries last.
    ~HvmState();

    using LoadedModules::modules;

    void setTerminationReport(ModuleList::FailureReport report) { terminationReport_ = std::move(report); }

private:
    ModuleList::FailureReport terminationReport_;
    DeferredFinalizer deferredFinalizer_;
    TypeRepository types_;
    PackageTree packages_;
};

} // namespace velmara
