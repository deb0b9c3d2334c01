#include "reference/HtmlText.hpp"

namespace velmara::console {

std::string htmlText(std::string_view text)
{
    std::string result;
    for (char const c : text)
        switch (c) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        case '\'':
            result += "&#39;";
            break;
        default:
            result += (static_cast<unsigned char>(c) < ' ' && c != '\n') || c == '\x7f' ? ' ' : c;
        }
    return result;
}

} // namespace velmara::console
