#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmara::console {

/// The UTF-8 text in at most `width` columns: a longer one is cut between characters, and ends with "...".
std::string cutText(std::string_view text, std::size_t width);

/// The first sentence of the first line, without its full stop.
std::string firstSentence(std::string_view text);

/// The text in one line that moves no cursor: control characters, and those in `others`, as a string of Lua has them,
/// "\n" or "\27".
std::string escapedText(std::string_view text, std::string_view others = {});

/// The same in double quotes, in at most `width` columns without these.
std::string quoteText(std::string_view text, std::size_t width);

} // namespace velmara::console
