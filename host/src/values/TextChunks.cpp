#include "values/TextChunks.hpp"

namespace velmara {

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
