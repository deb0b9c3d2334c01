#pragma once

#include "api/HvmState.hpp"
#include "errors/errorTranslation.hpp"

namespace velmara {

/// Runs one operation of the driving interface inside a virtual machine: whatever is thrown beneath leaves it as
/// a `velmara::Error`.
template <class Operation>
auto callInto(HvmState& machine, Operation const& operation)
{
    HvmState::CallBoundary const boundary(machine);
    HvmState::Entry const entry(machine);
    try {
        return operation();
    } catch (...) {
        rethrowAsError();
    }
}

} // namespace velmara
