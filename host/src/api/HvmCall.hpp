#pragma once

#include "api/HvmState.hpp"
#include "errors/errorTranslation.hpp"

namespace velmara {

/// Runs one operation of the driving interface inside a virtual machine: whatever is thrown beneath leaves it as
/// a `velmara::Error`.
template <class Operation>
[[gnu::always_inline]] inline auto callInto(Machine& machine, Operation const& operation)
{
    Machine::CallBoundary const boundary(machine);
    Machine::Entry const entry(machine);
    try {
        return operation();
    } catch (...) {
        rethrowAsError();
    }
}

} // namespace velmara
