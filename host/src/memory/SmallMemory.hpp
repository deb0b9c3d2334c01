#pragma once

#include "memory/ThreadShare.hpp"

#include <new>

namespace velmara {

/// The memory of arrays without their payloads, and of short texts: pieces of one size. Calls make and free them all
/// the time, so each thread keeps those that it freed last. Sanitized builds keep none, so that a late use is found.
class SmallMemory {
public:
    static constexpr std::size_t size = 88;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    static constexpr std::size_t mostKept = 0;
#else
    static constexpr std::size_t mostKept = 1024;
#endif

    /// A piece that the share keeps; null when it keeps none.
    static void* takeKept(ThreadShare& share)
    {
        KeptMemory* const memory = share.kept;
        if (memory) [[likely]] {
            share.kept = memory->next;
            --share.keptCount;
        }
        return memory;
    }

    /// A piece from the system. Throws `bad_alloc`.
    static void* allocate();

    static void giveBack(void* memory, ThreadShare& share) noexcept
    {
        if (share.keptCount == mostKept) [[unlikely]]
            return free(memory);
        share.kept = new (memory) KeptMemory{share.kept};
        ++share.keptCount;
    }

private:
    static void free(void* memory) noexcept;
};

} // namespace velmara
