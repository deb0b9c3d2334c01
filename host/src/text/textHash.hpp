#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace velmara {

// Hashing and comparing text in chunks of eight bytes. Nothing is read past the end of the text: its last chunks
// overlap those before.

inline std::uint64_t loadChunk(char const* text)
{
    std::uint64_t chunk;
    std::memcpy(&chunk, text, sizeof chunk);
    return chunk;
}

/// Both halves of the product, so that every bit of both factors counts.
inline std::uint64_t mixChunks(std::uint64_t a, std::uint64_t b)
{
    __extension__ using Wide = unsigned __int128;
    Wide const product = Wide(a ^ 0x9E3779B97F4A7C15) * (b ^ 0xD6E8FEB86659FD93);
    return std::uint64_t(product) ^ std::uint64_t(product >> 64);
}

/// Most names have 17 to 32 bytes, which are four chunks.
inline bool isFourChunks(std::size_t length)
{
    return length - 17 < 16;
}

inline std::uint64_t hashFourChunks(std::string_view text)
{
    char const* const begin = text.data();
    char const* const end = begin + text.size();
    return mixChunks(loadChunk(begin) ^ mixChunks(loadChunk(end - 16), loadChunk(end - 8)),
                     loadChunk(begin + 8) ^ text.size());
}

inline bool isSameFourChunks(std::string_view a, char const* b)
{
    auto const differ = [a, b](std::size_t place) { return loadChunk(a.data() + place) ^ loadChunk(b + place); };
    return (differ(0) | differ(8) | differ(a.size() - 16) | differ(a.size() - 8)) == 0;
}

/// Type names often have 8 to 16 bytes.
inline bool isTwoChunks(std::size_t length)
{
    return length - 8 < 9;
}

inline std::uint64_t hashTwoChunks(std::string_view text)
{
    return mixChunks(loadChunk(text.data()), loadChunk(text.data() + text.size() - 8) ^ text.size());
}

inline bool isSameTwoChunks(std::string_view a, char const* b)
{
    auto const differ = [a, b](std::size_t place) { return loadChunk(a.data() + place) ^ loadChunk(b + place); };
    return (differ(0) | differ(a.size() - 8)) == 0;
}

/// The whole of a text of fewer than eight bytes. Different texts of one length give different chunks.
inline std::uint64_t loadShort(char const* text, std::size_t length)
{
    auto const byte = [text](std::size_t index) { return std::uint64_t(static_cast<unsigned char>(text[index])); };
    if (length >= 4) {
        std::uint32_t head, tail;
        std::memcpy(&head, text, sizeof head);
        std::memcpy(&tail, text + length - sizeof tail, sizeof tail);
        return head | std::uint64_t(tail) << 32;
    }
    return length == 0 ? 0 : byte(0) | byte(length / 2) << 8 | byte(length - 1) << 16;
}

/// Compares texts of any length, without a call for short ones.
inline bool isSameText(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    if (a.size() < 8)
        return loadShort(a.data(), a.size()) == loadShort(b.data(), b.size());
    if (isTwoChunks(a.size()))
        return isSameTwoChunks(a, b.data());
    return isFourChunks(a.size()) ? isSameFourChunks(a, b.data()) : a == b;
}

/// The hash of a text of any length.
inline std::uint64_t hashText(std::string_view text)
{
    if (isFourChunks(text.size()))
        return hashFourChunks(text);
    if (text.size() < 8)
        return mixChunks(loadShort(text.data(), text.size()), text.size());
    if (isTwoChunks(text.size()))
        return hashTwoChunks(text);
    std::uint64_t hash = text.size();
    for (std::size_t place = 0; place + 8 < text.size(); place += 8)
        hash = mixChunks(loadChunk(text.data() + place), hash);
    return mixChunks(loadChunk(text.data() + text.size() - 8), hash);
}

} // namespace velmara
