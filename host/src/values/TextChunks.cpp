#include "values/TextChunks.hpp"

namespace velmara {

namespace {

/// The whole of a text of fewer than eight bytes. Different texts of one length give different chunks.
std::uint64_t loadShort(char const* text, std::size_t length)
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

} // namespace

std::uint64_t hashText(std::string_view text)
{
    if (isFourChunks(text.size()))
        return hashFourChunks(text);
    if (text.size() < 8)
        return mixChunks(loadShort(text.data(), text.size()), text.size());
    std::uint64_t hash = text.size();
    for (std::size_t place = 0; place + 8 < text.size(); place += 8)
        hash = mixChunks(loadChunk(text.data() + place), hash);
    return mixChunks(loadChunk(text.data() + text.size() - 8), hash);
}

} // namespace velmara
