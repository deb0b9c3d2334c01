#pragma once

#include "libkwi18n/libkwi18n.hpp"

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace orbis::factory::detail {

/// The first four of `units` as four bytes, which are right when all are ASCII; `seen` collects what tells.
inline std::uint32_t narrowFour(char16_t const* units, std::uint64_t& seen)
{
    std::uint64_t wide;
    std::memcpy(&wide, units, sizeof wide);
    seen |= wide;
    wide |= wide >> 8;
    return static_cast<std::uint32_t>((wide & 0xFFFF) | (wide >> 16 & 0xFFFF0000));
}

/// Appends `text` to a vector of texts, as UTF-8. Nearly all text is ASCII, which is written where it stays.
template <class Texts>
void appendNarrow(std::u16string_view text, Texts& texts)
{
    constexpr std::uint64_t beyondAscii = 0xFF80FF80FF80FF80;
    std::string& narrow = texts.emplace_back(text.size(), '\0');
    std::uint64_t seen = 0;
    std::size_t place = 0;
    for (; place + 4 <= text.size(); place += 4) {
        std::uint32_t const four = narrowFour(text.data() + place, seen);
        std::memcpy(narrow.data() + place, &four, sizeof four);
    }
    for (; place < text.size(); ++place) {
        seen |= text[place];
        narrow[place] = static_cast<char>(text[place]);
    }
    if (seen & beyondAscii) [[unlikely]]
        narrow = fl::i18n::to_string(fl::ustring(text));
}

} // namespace orbis::factory::detail
