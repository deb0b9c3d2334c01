#include "prompt/LineReader.hpp"

#include "scripts/Interruption.hpp"
#include "terminal/Terminal.hpp"

#include <cstdio>
#include <cstdlib>
#include <iostream>

namespace velmara::console {

namespace {

std::optional<std::string> readPlainly(std::string const& prompt)
{
    std::cout << prompt << std::flush;
    std::string line;
    if (!std::getline(std::cin, line))
        return std::nullopt;
    if (line.ends_with('\r'))
        line.pop_back();
    return line;
}

} // namespace

std::filesystem::path historyFile()
{
    if (char const* const file = std::getenv("VELMARA_HISTORY"))
        return file;
    char const* const home = std::getenv("HOME");
    return home ? std::filesystem::path(home) / ".velmara_history" : std::filesystem::path();
}

LineReader::LineReader(lua_State* L, std::filesystem::path const& history)
{
    if (isTerminal(stdin))
        editor_.emplace(L, history);
}

LineReader::Result LineReader::read(std::string const& prompt, std::string& line)
{
    if (std::optional<std::string> text = editor_ ? editor_->read(prompt) : readPlainly(prompt)) {
        line = std::move(*text);
        return Result::Line;
    }
    if (!InterruptHandler::takeInterrupt())
        return Result::End;
    std::cin.clear();
    std::clearerr(stdin);
    std::puts("^C");
    return Result::Interrupted;
}

} // namespace velmara::console
