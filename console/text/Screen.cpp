#include "text/Screen.hpp"

#if defined(_WIN32)
#include <windows.h>
#else
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace velmara::console {

namespace {

/// Without the lines of the prompt itself.
std::size_t rowsAbovePrompt(std::size_t rows)
{
    constexpr std::size_t minRows = 5;
    return rows > minRows + 2 ? rows - 2 : minRows;
}

} // namespace

#if defined(_WIN32)

Screen outputScreen()
{
    CONSOLE_SCREEN_BUFFER_INFO info;
    if (!GetConsoleScreenBufferInfo(GetStdHandle(STD_OUTPUT_HANDLE), &info))
        return {};
    return {static_cast<std::size_t>(info.srWindow.Right - info.srWindow.Left + 1),
            rowsAbovePrompt(static_cast<std::size_t>(info.srWindow.Bottom - info.srWindow.Top + 1))};
}

#else

Screen outputScreen()
{
    winsize size{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0 || size.ws_row == 0)
        return {};
    return {size.ws_col, rowsAbovePrompt(size.ws_row)};
}

#endif

} // namespace velmara::console
