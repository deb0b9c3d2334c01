#pragma once

#include "velmara/LiveCounts.hpp"

#include <cstddef>

namespace velmara {

/// A piece of memory that is kept for its next use.
struct KeptMemory {
    KeptMemory* next;
};

/// What one thread counts and keeps for itself, without a lock or an atomic operation. A count may be negative (made
/// here, given back there); the sum over all shares is exact. When a thread ends, the next one goes on with its share.
struct ThreadShare {
    LiveCounts counts;
    KeptMemory* kept = nullptr;
    std::size_t keptCount = 0;
};

// The host library is never loaded late enough to lack static TLS room for one pointer; what this model saves is
// a call on every use. Windows has no such choice.
#if defined(_WIN32)
extern constinit thread_local ThreadShare* shareOfThisThread;
#else
extern constinit thread_local ThreadShare* shareOfThisThread [[gnu::tls_model("initial-exec")]];
#endif

/// Gives the calling thread its share for the rest of its life.
ThreadShare& takeThreadShare() noexcept;

inline ThreadShare& ownThreadShare() noexcept
{
    if (ThreadShare* const share = shareOfThisThread) [[likely]]
        return *share;
    return takeThreadShare();
}

} // namespace velmara
