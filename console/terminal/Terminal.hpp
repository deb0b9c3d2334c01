#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace velmara::console {

/// True when the stream is a terminal.
bool isTerminal(std::FILE* stream);

/// True when the stream is a terminal that understands control sequences: not one of TERM=dumb.
bool hasControlSequences(std::FILE* stream);

/// True when what is written there may be coloured: NO_COLOR is empty or not set, besides.
bool hasColours(std::FILE* stream);

enum class Style { Error, Prompt };

/// The control sequence that begins the style, and the one that ends all.
std::string_view startOf(Style style);
inline constexpr std::string_view endOfStyle = "\x1b[0m";

/// Puts the cursor at the beginning of its line, and erases that.
inline constexpr char const* eraseLine = "\r\x1b[K";

} // namespace velmara::console
