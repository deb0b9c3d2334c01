#pragma once

#include "system/Dispatch.hpp"

#include <span>

namespace velmara {

/// True when the method can be called with so many inputs, and on an object where it needs one.
inline bool takesInputs(Method const& method, CallInputs const& call)
{
    return method.inputs.size() == call.inputs.size() + method.takesObject && (!method.takesObject || call.self);
}

/// What the dispatch refuses. Each error names what may be called and what was given.
[[noreturn]] void refuseNoMatch(std::span<Method const* const> candidates, CallInputs const& call);
[[noreturn]] void refuseAmbiguous(std::span<Method const* const> rivals, CallInputs const& call);
[[noreturn]] void refuseAccess(MethodGroup const& group);
[[noreturn]] void refuseAbstract(Method const& method);

} // namespace velmara
