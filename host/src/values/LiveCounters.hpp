#pragma once

#include "velmara/LiveCounts.hpp"

namespace velmara {

/// The calling thread's own share of the live counts: counting takes no lock and no atomic read-modify-write.
/// A share may be negative (made here, given back there); the sum over all threads is exact.
LiveCounts& liveCountsOfThisThread();

} // namespace velmara
