#pragma once

#include "memory/ThreadShare.hpp"

namespace velmara {

/// The calling thread's own share of the live counts.
inline LiveCounts& liveCountsOfThisThread() noexcept
{
    return ownThreadShare().counts;
}

} // namespace velmara
