#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace velmara {

inline std::uint64_t loadChunk(char const* text)
{
    std::uint64_t chunk;
    std::memcpy(&chunk, text, sizeof chunk);
    return chunk;
}

/// The whole of a text of fewer than eight bytes. Different texts of one length give different chunks.
[[gnu::always_inline]] inline std::uint64_t loadShort(char const* text, std::size_t length)
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

/// Both halves of the product, so that every bit of both chunks counts.
inline std::uint64_t mixChunks(std::uint64_t hash, std::uint64_t a, std::uint64_t b)
{
    __extension__ using Wide = unsigned __int128;
    Wide const product = Wide(a ^ hash) * (b ^ 0xD6E8FEB86659FD93);
    return std::uint64_t(product) ^ std::uint64_t(product >> 64);
}

/// Hashes two chunks of eight bytes at a time. The last two overlap those before them, or one another, so that nothing
/// past the text is read.
[[gnu::always_inline]] inline std::uint64_t hashText(std::string_view text)
{
    char const* chunk = text.data();
    std::size_t const size = text.size();
    std::uint64_t hash = size ^ 0x9E3779B97F4A7C15;
    if (size < 8)
        return mixChunks(hash, loadShort(chunk, size), 0);
    if (size < 16)
        return mixChunks(hash, loadChunk(chunk), loadChunk(chunk + size - 8));
    char const* const last = chunk + size - 16;
    for (; chunk < last; chunk += 16)
        hash = mixChunks(hash, loadChunk(chunk), loadChunk(chunk + 8));
    return mixChunks(hash, loadChunk(last), loadChunk(last + 8));
}

/// Compares two texts of one length in line, for names, which are short and mostly the same.
[[gnu::always_inline]] inline bool isSameText(char const* a, char const* b, std::size_t size)
{
    if (size < 8)
        return loadShort(a, size) == loadShort(b, size);
    std::size_t const last = size - 8;
    for (std::size_t i = 0; i < last; i += 8)
        if (loadChunk(a + i) != loadChunk(b + i))
            return false;
    return loadChunk(a + last) == loadChunk(b + last);
}

} // namespace velmara
