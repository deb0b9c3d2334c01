#pragma once

#include "classes/PackageTree.hpp"
#include "machine/Machine.hpp"
#include "modules/ModuleList.hpp"
#include "objects/DeferredFinalizer.hpp"
#include "types/TypeRepository.hpp"

namespace velmara {

/// What an Hvm owns: everything that belongs to one virtual machine.
class HvmState final : public Machine {
public:
    HvmState();

    /// Finalizes the objects, terminates the modules, removes packages and classes, then clears storage and types,
    /// and unloads the modules' libraries last.
    ~HvmState();

    ModuleList& modules() { return modules_; }

    void setTerminationReport(ModuleList::FailureReport report) { terminationReport_ = std::move(report); }

private:
    ModuleList modules_; // first, so that the modules' code is unloaded last
    ModuleList::FailureReport terminationReport_;
    DeferredFinalizer deferredFinalizer_;
    TypeRepository types_;
    PackageTree packages_;
};

} // namespace velmara
