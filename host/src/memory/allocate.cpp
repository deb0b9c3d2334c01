#include "memory/allocate.hpp"

#include "libkwfl/bad_alloc.hpp"

#include <cstdlib>

namespace velmara {

void* allocate(std::size_t size)
{
    if (void* const memory = std::malloc(size))
        return memory;
    throw foundation::core::except::bad_alloc();
}

} // namespace velmara
