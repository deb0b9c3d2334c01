#include "text/Paragraph.hpp"

#include "text/DisplayWidth.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

constexpr std::size_t maxLineWidth = 80;

std::string_view takeUntil(std::string_view& text, char end)
{
    std::size_t const length = std::min(text.find(end), text.size());
    std::string_view const part = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return part;
}

void addWrapped(std::string& result, std::string_view line, std::size_t indent, std::size_t hanging)
{
    std::string current(indent, ' ');
    bool hasWord = false;
    while (!line.empty()) {
        std::string_view const word = takeUntil(line, ' ');
        if (hasWord && displayWidth(current) + 1 + displayWidth(word) > maxLineWidth) {
            result += current + '\n';
            current.assign(hanging, ' ');
            hasWord = false;
        }
        current += hasWord ? " " : "";
        current += word;
        hasWord = true;
    }
    result += current + '\n';
}

} // namespace

std::string paragraph(std::string_view text, std::size_t indent, std::size_t hanging)
{
    std::string result;
    for (std::size_t start = indent; !text.empty(); start = hanging)
        addWrapped(result, takeUntil(text, '\n'), start, hanging);
    std::ranges::replace(result, nonBreakingSpace, ' ');
    return result;
}

} // namespace velmara::console
