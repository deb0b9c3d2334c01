#include "text/CutText.hpp"

#include "text/DisplayWidth.hpp"

namespace velmara::console {

namespace {

constexpr std::string_view ellipsis = "...";

/// The length in bytes of the first `count` characters.
std::size_t lengthOf(std::string_view text, std::size_t count)
{
    std::size_t length = 0;
    for (std::size_t found = 0; length < text.size(); ++length)
        if ((text[length] & 0xC0) != 0x80 && found++ == count)
            break;
    return length;
}

} // namespace

std::string cutText(std::string_view text, std::size_t width)
{
    if (text.size() <= width || displayWidth(text) <= width)
        return std::string(text);
    if (width < ellipsis.size())
        return std::string(ellipsis.substr(0, width));
    return std::string(text.substr(0, lengthOf(text, width - ellipsis.size()))).append(ellipsis);
}

std::string firstSentence(std::string_view text)
{
    std::string_view const line = text.substr(0, text.find('\n'));
    return std::string(line.substr(0, line.find(". ")));
}

std::string escapedText(std::string_view text, std::string_view others)
{
    std::string result;
    for (char const c : text) {
        auto const code = static_cast<unsigned char>(c);
        if (c == '\n')
            result += "\\n";
        else if (c == '\t')
            result += "\\t";
        else if (code < ' ' || code == 0x7F)
            result += '\\' + std::to_string(code);
        else
            result.append(others.find(c) != others.npos ? 1 : 0, '\\').append(1, c);
    }
    return result;
}

std::string quoteText(std::string_view text, std::size_t width)
{
    constexpr std::size_t maxBytes = 4; // of one character: what is cut off anyway is not escaped first
    return '"' + cutText(escapedText(text.substr(0, (width + 1) * maxBytes), "\"\\"), width) + '"';
}

} // namespace velmara::console
