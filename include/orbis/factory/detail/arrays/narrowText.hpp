#pragma once

#include "libkwi18n/libkwi18n.hpp"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace orbis::factory::detail {

/// Writes each UTF-16 code unit of `text` to `to` as one byte. Returns whether the text is ASCII, without which the
/// bytes are meaningless.
inline bool narrowAscii(std::u16string_view text, char* to)
{
    // Compiler vector types, whose narrowing conversion compiles to a few instructions.
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
        narrowBlock(text.size() - block); // may overlap the previous block
        std::memcpy(seen, &allUnits, sizeof seen);
    }
    return ((seen[0] | seen[1]) & 0xFF80FF80FF80FF80) == 0;
}

/// Appends a text to a vector of strings as UTF-8. ASCII, the common case, is narrowed directly into the new element.
template <class Texts>
void appendNarrow(std::u16string_view text, Texts& texts)
{
    std::string& narrow = texts.emplace_back(text.size(), '\0');
    if (!narrowAscii(text, narrow.data())) [[unlikely]]
        narrow = fl::i18n::to_string(fl::ustring(text));
}

} // namespace orbis::factory::detail
