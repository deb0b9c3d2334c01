#include "terminal/Terminal.hpp"

#include <cstdlib>

#if defined(_WIN32)
#include <windows.h>

#include <io.h>
#else
#include <unistd.h>
#endif

namespace velmara::console {

namespace {

std::string_view environment(char const* name)
{
    char const* const value = std::getenv(name);
    return value ? value : "";
}

void write(std::FILE* stream, std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stream);
}

} // namespace

#if defined(_WIN32)

namespace {

HANDLE consoleOf(std::FILE* stream)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
}

} // namespace

bool isTerminal(std::FILE* stream)
{
    DWORD mode = 0;
    return GetConsoleMode(consoleOf(stream), &mode) != 0;
}

bool isScreen(std::FILE* stream)
{
    return environment("TERM") != "dumb" && isTerminal(stream);
}

void writeStyled(std::FILE* stream, Style style, std::string_view text)
{
    CONSOLE_SCREEN_BUFFER_INFO info;
    if (!hasStyles(stream) || !GetConsoleScreenBufferInfo(consoleOf(stream), &info))
        return write(stream, text);
    constexpr WORD colours = FOREGROUND_RED | FOREGROUND_GREEN | FOREGROUND_BLUE;
    WORD const colour = style == Style::Error ? FOREGROUND_RED : info.wAttributes & colours;
    std::fflush(stream);
    SetConsoleTextAttribute(consoleOf(stream), (info.wAttributes & ~colours) | colour | FOREGROUND_INTENSITY);
    write(stream, text);
    std::fflush(stream);
    SetConsoleTextAttribute(consoleOf(stream), info.wAttributes);
}

#else

bool isTerminal(std::FILE* stream)
{
    return isatty(fileno(stream)) == 1;
}

bool isScreen(std::FILE* stream)
{
    std::string_view const kind = environment("TERM");
    return !kind.empty() && kind != "dumb" && isTerminal(stream);
}

void writeStyled(std::FILE* stream, Style style, std::string_view text)
{
    bool const isStyled = hasStyles(stream);
    write(stream, isStyled ? startOf(style) : "");
    write(stream, text);
    write(stream, isStyled ? endOfStyle : "");
}

#endif

bool hasStyles(std::FILE* stream)
{
    return environment("NO_COLOR").empty() && isScreen(stream);
}

std::string_view startOf(Style style)
{
    return style == Style::Error ? "\x1b[1;31m" : "\x1b[1m";
}

void eraseLine(std::FILE* stream, std::size_t length)
{
    std::fprintf(stream, "\r%*s\r", static_cast<int>(length), "");
}

} // namespace velmara::console
