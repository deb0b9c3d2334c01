#pragma once

#include <vector>

namespace velmara {

/// Reserves memory for one more element, so that adding it cannot fail.
template <class T>
void reserveNext(std::vector<T>& elements)
{
    if (elements.size() == elements.capacity())
        elements.reserve(2 * elements.size() + 1);
}

} // namespace velmara
