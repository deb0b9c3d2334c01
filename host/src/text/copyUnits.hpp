#pragma once

#include <cstring>
#include <string_view>

namespace velmara {

/// Copies UTF-16 text. A short one is copied in line, in two blocks that overlap.
inline void copyUnits(std::u16string_view text, char16_t* out)
{
    std::size_t const size = text.size();
    auto const copyTwo = [&]<std::size_t units>(std::integral_constant<std::size_t, units>) {
        std::memcpy(out, text.data(), units * sizeof(char16_t));
        std::memcpy(out + size - units, text.data() + size - units, units * sizeof(char16_t));
    };
    if (size > 16)
        std::memcpy(out, text.data(), size * sizeof(char16_t));
    else if (size >= 8)
        copyTwo(std::integral_constant<std::size_t, 8>());
    else if (size >= 4)
        copyTwo(std::integral_constant<std::size_t, 4>());
    else
        for (std::size_t i = 0; i < size; ++i)
            out[i] = text[i];
}

} // namespace velmara
