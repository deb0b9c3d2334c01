#pragma once

#include "velmara/LiveCounts.hpp"

namespace velmara {

// The host library is never loaded late enough to lack static TLS room for one pointer; what this model saves is
// a call on every count. Windows has no such choice.
#if defined(_WIN32)
extern constinit thread_local LiveCounts* shareOfThisThread;
#else
extern constinit thread_local LiveCounts* shareOfThisThread [[gnu::tls_model("initial-exec")]];
#endif

/// Gives the calling thread its share for the rest of its life.
LiveCounts& takeLiveCountsShare() noexcept;

/// The calling thread's own share of the live counts: counting takes no lock and no atomic read-modify-write.
/// A share may be negative (made here, given back there); the sum over all threads is exact.
inline LiveCounts& liveCountsOfThisThread() noexcept
{
    if (LiveCounts* share = shareOfThisThread) [[likely]]
        return *share;
    return takeLiveCountsShare();
}

} // namespace velmara
