#pragma once

#include "memory/ThreadCache.hpp"
#include "memory/allocate.hpp"

#include <cstdlib>
#include <new>

namespace velmara {

/// Blocks of one size, for arrays without their payloads, objects and short texts. Calls allocate and free them all the
/// time, so each thread keeps those that it freed last. Sanitized builds keep none, so that use after free is found.
class BlockPool {
public:
    static constexpr std::size_t blockSize = 88;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    static constexpr std::size_t maxFree = 0;
#else
    static constexpr std::size_t maxFree = 1024;
#endif

    /// A block that the cache keeps; null when it keeps none: `allocate(blockSize)` has one then.
    static void* acquire(ThreadCache& cache)
    {
        FreeBlock* const block = cache.freeBlocks;
        if (block) [[likely]] {
            cache.freeBlocks = block->next;
            --cache.freeCount;
        }
        return block;
    }

    static void release(void* block, ThreadCache& cache) noexcept
    {
        if (cache.freeCount == maxFree) [[unlikely]]
            return std::free(block);
        cache.freeBlocks = new (block) FreeBlock{cache.freeBlocks};
        ++cache.freeCount;
    }
};

} // namespace velmara
