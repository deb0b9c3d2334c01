#pragma once

#include "libkwi18n/libkwi18n.hpp"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace orbis::factory::detail {

/// Writes UTF-16 text as one byte for each code unit; true when that was right, because all is ASCII.
inline bool narrowAscii(std::u16string_view text, char* to)
{
    // The compiler's own vectors, which it knows how to narrow.
    using Units [[gnu::vector_size(16)]] = std::uint16_t;
    using Bytes [[gnu::vector_size(8)]] = std::uint8_t;
    constexpr std::size_t block = 8;
    std::uint64_t seen[2] = {};
    if (text.size() < block) {
        for (std::size_t i = 0; i < text.size(); ++i) {
            seen[0] |= text[i];
            to[i] = static_cast<char>(text[i]);
        }
    } else {
        Units allUnits = {};
        auto const narrowBlock = [&](std::size_t place) {
            Units units;
            std::memcpy(&units, text.data() + place, sizeof units);
            allUnits |= units;
            Bytes const bytes = __builtin_convertvector(units, Bytes);
            std::memcpy(to + place, &bytes, sizeof bytes);
        };
        for (std::size_t place = 0; place + block < text.size(); place += block)
            narrowBlock(place);
        narrowBlock(text.size() - block); // overlaps the one before it
        std::memcpy(seen, &allUnits, sizeof seen);
    }
    return ((seen[0] | seen[1]) & 0xFF80FF80FF80FF80) == 0;
}

/// Appends a text to a vector of texts, as UTF-8. Nearly all text is ASCII, which is written where it stays.
template <class Texts>
void appendNarrow(std::u16string_view text, Texts& texts)
{
    std::string& narrow = texts.emplace_back(text.size(), '\0');
    if (!narrowAscii(text, narrow.data())) [[unlikely]]
        narrow = fl::i18n::to_string(fl::ustring(text));
}

} // namespace orbis::factory::detail
