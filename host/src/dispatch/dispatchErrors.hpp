#pragma once

#include "dispatch/Dispatch.hpp"

#include <span>

namespace velmara {

/// What the dispatch refuses. Each error names what may be called and what was given.
[[noreturn]] void refuseNoMatch(std::span<Method const* const> candidates, CallInputs const& call);
[[noreturn]] void refuseAmbiguous(std::span<Method const* const> rivals, CallInputs const& call);

} // namespace velmara
