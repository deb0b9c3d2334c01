#include "terminal/Pager.hpp"

#include "terminal/KeyReader.hpp"
#include "terminal/Terminal.hpp"
#include "text/DisplayWidth.hpp"
#include "text/Screen.hpp"

#include <algorithm>
#include <cstdio>
#include <optional>

namespace velmara::console {

namespace {

char const enabledKey = 0; // its address is the key of what tells in the registry that paging is enabled

bool isPaging(lua_State* L)
{
    lua_rawgetp(L, LUA_REGISTRYINDEX, &enabledKey);
    bool const isEnabled = lua_toboolean(L, -1);
    lua_pop(L, 1);
    return isEnabled;
}

/// Removes the first line of the text, and returns it with its end.
std::string_view takeLine(std::string_view& text)
{
    std::string_view const line = text.substr(0, std::min(text.find('\n'), text.size() - 1) + 1);
    text.remove_prefix(line.size());
    return line;
}

/// The rows of the screen that the line takes.
std::size_t height(std::string_view line, std::size_t columns)
{
    return std::max<std::size_t>(1, (displayWidth(line) + columns - 1 - line.ends_with('\n')) / columns);
}

void write(std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
}

/// How many rows more the key asks for; nothing for a key that means nothing.
std::optional<std::size_t> rowsFor(int key, std::size_t rows, std::size_t left)
{
    switch (key) {
    case ' ':
        return rows;
    case '\r':
    case '\n':
        return 1;
    case 'a':
        return left;
    case 'q':
    case KeyReader::end:
        return 0;
    default:
        return std::nullopt;
    }
}

/// Asks how to go on. Returns how many rows more to show: the `rows` of the screen, one, all that is `left`, or none.
std::size_t askForMore(std::size_t rows, std::size_t left)
{
    constexpr std::string_view question = "-- more: Space, Enter, a(ll), q(uit) --";
    write(question);
    std::fflush(stdout);
    std::optional<std::size_t> more;
    for (KeyReader keys; !more;)
        more = rowsFor(keys.read(), rows, left);
    eraseLine(stdout, question.size());
    return more.value_or(0);
}

} // namespace

void enablePaging(lua_State* L)
{
    lua_pushboolean(L, isTerminal(stdin) && isScreen(stdout));
    lua_rawsetp(L, LUA_REGISTRYINDEX, &enabledKey);
}

void printPaged(lua_State* L, std::string_view text)
{
    if (!isPaging(L))
        return write(text);
    Screen const screen = outputScreen();
    for (std::size_t room = screen.rows; !text.empty();) {
        if (room == 0)
            room = askForMore(screen.rows, text.size());
        if (room == 0)
            return;
        std::string_view const line = takeLine(text);
        write(line);
        room -= std::min(room, height(line, screen.columns));
    }
}

} // namespace velmara::console
