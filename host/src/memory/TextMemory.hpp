#pragma once

#include "memory/SmallMemory.hpp"

#include <cstdint>

namespace velmara {

/// The memory of texts that the host hands out. Before each text stands where it comes from.
class TextMemory {
public:
    /// Memory for `size` characters and their NUL, which is written already. Throws `bad_alloc`.
    template <class Char>
    static Char* allocate(std::size_t size)
    {
        auto* const text = static_cast<Char*>(allocateBytes((size + 1) * sizeof(Char)));
        text[size] = Char();
        return text;
    }

    /// Null is allowed.
    static void free(void* text) noexcept
    {
        if (!text)
            return;
        auto* const origin = static_cast<Origin*>(text) - 1;
        ThreadShare* const share = shareOfThisThread;
        if (*origin == Origin::Small && share) [[likely]]
            return SmallMemory::giveBack(origin, *share);
        freeToSystem(origin);
    }

private:
    enum class Origin : std::uint64_t { System, Small };

    static void* allocateBytes(std::size_t size)
    {
        ThreadShare* const share = shareOfThisThread;
        bool const isSmall = SmallMemory::mostKept > 0 && size <= SmallMemory::size - sizeof(Origin) && share;
        auto* const origin = static_cast<Origin*>(isSmall ? SmallMemory::takeKept(*share) : nullptr);
        if (!origin) [[unlikely]]
            return allocateFromSystem(size);
        *origin = Origin::Small;
        return origin + 1;
    }

    static void* allocateFromSystem(std::size_t size);
    static void freeToSystem(Origin* origin) noexcept;
};

} // namespace velmara
