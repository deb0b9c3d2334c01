#pragma once

#include "memory/BlockPool.hpp"

#include <cstdint>

namespace velmara {

/// The memory of texts that the host hands out. A word before each text tells whether it is in a block of the pool.
class TextAllocator {
public:
    /// Memory for `size` characters and a NUL, which is written already. Throws `bad_alloc`.
    template <class Char>
    static Char* allocate(std::size_t size)
    {
        auto* const text = static_cast<Char*>(allocateBytes((size + 1) * sizeof(Char)));
        text[size] = Char();
        return text;
    }

    /// The bytes of a text's memory.
    template <class Char>
    static std::size_t memory(std::size_t size)
    {
        std::size_t const bytes = (size + 1) * sizeof(Char);
        return fitsBlock(bytes) ? BlockPool::blockSize : bytes + sizeof(Origin);
    }

    /// Null is allowed.
    static void free(void* text) noexcept
    {
        if (!text)
            return;
        auto* const origin = static_cast<Origin*>(text) - 1;
        ThreadCache* const cache = threadCache;
        if (*origin == Origin::Pool && cache) [[likely]]
            return BlockPool::release(origin, *cache);
        std::free(origin);
    }

private:
    enum class Origin : std::uint64_t { System, Pool };

    static bool fitsBlock(std::size_t size)
    {
        return BlockPool::maxFree > 0 && size <= BlockPool::blockSize - sizeof(Origin);
    }

    static void* allocateBytes(std::size_t size)
    {
        ThreadCache* const cache = threadCache;
        auto* const origin = static_cast<Origin*>(fitsBlock(size) && cache ? BlockPool::acquire(*cache) : nullptr);
        if (!origin) [[unlikely]]
            return allocateFromSystem(size);
        *origin = Origin::Pool;
        return origin + 1;
    }

    static void* allocateFromSystem(std::size_t size);
};

} // namespace velmara
