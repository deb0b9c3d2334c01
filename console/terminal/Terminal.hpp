#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace velmara::console {

/// True when the stream is a terminal.
bool isTerminal(std::FILE* stream);

/// True when the stream is a terminal on which a line can be erased and styled: not one of TERM=dumb.
bool isScreen(std::FILE* stream);

/// True when what is written there is styled: it is a screen, and NO_COLOR is empty or not set.
bool hasStyles(std::FILE* stream);

enum class Style { Error, Prompt };

/// Writes the text, in the style where the stream has styles.
void writeStyled(std::FILE* stream, Style style, std::string_view text);

/// The control sequence that begins the style, and the one that ends all; not for Windows.
std::string_view startOf(Style style);
inline constexpr std::string_view endOfStyle = "\x1b[0m";

/// Erases so many characters from the beginning of the cursor's line, and puts the cursor there.
void eraseLine(std::FILE* stream, std::size_t length);

} // namespace velmara::console
