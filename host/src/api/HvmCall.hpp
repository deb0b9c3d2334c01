#pragma once

#include "api/HvmState.hpp"
#include "errors/errorTranslation.hpp"

#include <optional>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace velmara {

/// Runs one operation of the driving interface inside a virtual machine: whatever is thrown beneath leaves it as
/// a `velmara::Error`, or is put into `failure` where there is one.
template <class Operation>
[[gnu::always_inline]] inline auto callInto(Machine& machine, Operation const& operation,
                                            std::optional<Error>* failure = nullptr)
{
    Machine::CallBoundary const boundary(machine);
    Machine::Entry const entry(machine);
    using Result = decltype(operation());
    return translateErrors(operation, [failure]<class Caught>(Caught&& error) -> Result {
        if (failure && typeid(error) == typeid(Error)) {
            failure->emplace(error);
            return Result();
        }
        if constexpr (std::is_lvalue_reference_v<Caught>)
            throw; // it may be of a class of its own
        else
            throw std::forward<Caught>(error);
    });
}

} // namespace velmara
