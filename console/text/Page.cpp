#include "text/Page.hpp"

#include "text/CutText.hpp"

namespace velmara::console {

void Page::add(std::size_t indent, std::string_view line)
{
    if (isFull())
        return;
    ++rows_;
    if (isFull()) {
        text_ += "...\n";
        return;
    }
    text_ += cutText(std::string(indent, ' ').append(line), screen_.columns) + '\n';
}

} // namespace velmara::console
