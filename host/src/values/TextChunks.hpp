#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace velmara {

/// Reading text eight bytes at a time, never past its end: the last chunk overlaps the one before it.
inline std::uint64_t loadChunk(char const* text)
{
    std::uint64_t chunk;
    std::memcpy(&chunk, text, sizeof chunk);
    return chunk;
}

/// The whole of a text of fewer than eight bytes. Different texts of one length give different chunks.
inline std::uint64_t loadShort(std::string_view text)
{
    auto const byte = [&](std::size_t index) { return std::uint64_t(static_cast<unsigned char>(text[index])); };
    if (text.size() >= 4) {
        std::uint32_t head, tail;
        std::memcpy(&head, text.data(), sizeof head);
        std::memcpy(&tail, text.data() + text.size() - sizeof tail, sizeof tail);
        return head | std::uint64_t(tail) << 32;
    }
    return text.empty() ? 0 : byte(0) | byte(text.size() / 2) << 8 | byte(text.size() - 1) << 16;
}

inline std::uint64_t hashText(std::string_view text)
{
    auto const mix = [](std::uint64_t hash, std::uint64_t chunk) {
        hash = (hash ^ chunk) * 0x9E3779B97F4A7C15;
        return hash ^ hash >> 32;
    };
    std::uint64_t hash = text.size();
    if (text.size() < 8)
        return mix(hash, loadShort(text));
    char const* const last = text.data() + text.size() - 8;
    for (char const* position = text.data(); position < last; position += 8)
        hash = mix(hash, loadChunk(position));
    return mix(hash, loadChunk(last));
}

/// Whether two texts of one length are equal.
inline bool isSameText(std::string_view a, char const* b)
{
    if (a.size() < 8)
        return loadShort(a) == loadShort({b, a.size()});
    std::size_t const last = a.size() - 8;
    for (std::size_t position = 0; position < last; position += 8) {
        if (loadChunk(a.data() + position) != loadChunk(b + position))
            return false;
    }
    return loadChunk(a.data() + last) == loadChunk(b + last);
}

} // namespace velmara
