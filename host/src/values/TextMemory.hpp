#pragma once

#include "libkwfl/bad_alloc.hpp"

#include <cstddef>
#include <cstdlib>

namespace velmara {

/// Memory for a text and its NUL, which is written already. Freed with `std::free`. Throws `bad_alloc`.
template <class Char>
Char* allocateText(std::size_t size)
{
    auto* const text = static_cast<Char*>(std::malloc((size + 1) * sizeof(Char)));
    if (!text)
        throw foundation::core::except::bad_alloc();
    text[size] = Char();
    return text;
}

} // namespace velmara
