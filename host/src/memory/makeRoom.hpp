#pragma once

#include <vector>

namespace velmara {

/// Has the next element that is added take no memory.
template <class T>
void makeRoom(std::vector<T>& elements)
{
    if (elements.size() == elements.capacity())
        elements.reserve(2 * elements.size() + 1);
}

} // namespace velmara
