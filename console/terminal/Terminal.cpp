#include "terminal/Terminal.hpp"

#include <cstdlib>

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
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

} // namespace

#if defined(_WIN32)

bool isTerminal(std::FILE* stream)
{
    DWORD mode = 0;
    return GetConsoleMode(reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream))), &mode) != 0;
}

bool hasControlSequences(std::FILE* stream)
{
    auto* const console = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
    constexpr DWORD understandsSequences = 0x0004; // ENABLE_VIRTUAL_TERMINAL_PROCESSING, since Windows 10
    DWORD mode = 0;
    return environment("TERM") != "dumb" && GetConsoleMode(console, &mode) != 0 &&
           SetConsoleMode(console, mode | understandsSequences) != 0;
}

#else

bool isTerminal(std::FILE* stream)
{
    return isatty(fileno(stream)) == 1;
}

bool hasControlSequences(std::FILE* stream)
{
    std::string_view const kind = environment("TERM");
    return !kind.empty() && kind != "dumb" && isTerminal(stream);
}

#endif

bool hasColours(std::FILE* stream)
{
    return environment("NO_COLOR").empty() && hasControlSequences(stream);
}

std::string_view startOf(Style style)
{
    return style == Style::Error ? "\x1b[1;31m" : "\x1b[1m";
}

} // namespace velmara::console
