#include "memory/TextMemory.hpp"

#include "libkwfl/bad_alloc.hpp"

#include <cstdlib>

namespace velmara {

// A small text gets a small piece, which is kept when the text is freed.
void* TextMemory::allocateFromSystem(std::size_t size)
{
    bool const isSmall = SmallMemory::mostKept > 0 && size <= SmallMemory::size - sizeof(Origin);
    auto* const origin = static_cast<Origin*>(std::malloc(isSmall ? SmallMemory::size : size + sizeof(Origin)));
    if (!origin)
        throw foundation::core::except::bad_alloc();
    *origin = isSmall ? Origin::Small : Origin::System;
    return origin + 1;
}

void TextMemory::freeToSystem(Origin* origin) noexcept
{
    std::free(origin);
}

} // namespace velmara
