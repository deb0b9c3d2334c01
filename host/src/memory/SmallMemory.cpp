#include "memory/SmallMemory.hpp"

#include "libkwfl/bad_alloc.hpp"

#include <cstdlib>

namespace velmara {

void* SmallMemory::allocate()
{
    if (void* const memory = std::malloc(size))
        return memory;
    throw foundation::core::except::bad_alloc();
}

void SmallMemory::free(void* memory) noexcept
{
    std::free(memory);
}

} // namespace velmara
