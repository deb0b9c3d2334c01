#pragma once

#include "dispatch/Dispatch.hpp"

#include <span>

namespace velmara {

/// The errors of the dispatch. Each names what may be called and what was given.
[[noreturn]] void throwNoMatch(std::span<Method const* const> candidates, CallInputs const& call);
[[noreturn]] void throwAmbiguous(std::span<Method const* const> rivals, CallInputs const& call);

} // namespace velmara
