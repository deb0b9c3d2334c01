#pragma once

#include "velmara/LiveCounts.hpp"

#include <cstddef>

namespace velmara {

/// A block of memory that waits for its next use.
struct FreeBlock {
    FreeBlock* next;
};

/// What one thread counts and caches for itself, without a lock or an atomic operation. A count may be negative
/// (created on this thread, destroyed on another); the sum over all caches is exact. The cache of a thread that has
/// ended is the next new thread's.
struct ThreadCache {
    LiveCounts counts;
    FreeBlock* freeBlocks = nullptr;
    std::size_t freeCount = 0;
};

/// Null until the thread first needs it, and while it is withheld.
extern constinit thread_local ThreadCache* threadCache;

/// Gives the calling thread its cache for the rest of its life. One that is withheld stays so.
ThreadCache& acquireThreadCache() noexcept;

/// Has `threadCache` be null from now on: whoever creates something on this thread then takes the way of those that
/// have no cache, where there is time for more than that.
void withholdThreadCache() noexcept;
void restoreThreadCache() noexcept;

inline ThreadCache& currentThreadCache() noexcept
{
    if (ThreadCache* const cache = threadCache) [[likely]]
        return *cache;
    return acquireThreadCache();
}

/// The calling thread's part of the live counts.
inline LiveCounts& currentLiveCounts() noexcept
{
    return currentThreadCache().counts;
}

} // namespace velmara
