#include "memory/TextAllocator.hpp"

namespace velmara {

// What fits a block gets one, so that the pool can keep it once the text is freed.
void* TextAllocator::allocateFromSystem(std::size_t size)
{
    bool const isBlock = fitsBlock(size);
    auto* const origin =
        static_cast<Origin*>(velmara::allocate(isBlock ? BlockPool::blockSize : size + sizeof(Origin)));
    *origin = isBlock ? Origin::Pool : Origin::System;
    return origin + 1;
}

} // namespace velmara
