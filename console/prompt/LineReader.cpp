#include "prompt/LineReader.hpp"

#include "help/Completion.hpp"

#if defined(_WIN32)
#include <io.h>
#else
#include <editline/readline.h>
#include <unistd.h>
#endif

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>

namespace velmara::console {

namespace {

std::optional<std::string> readPlainly(char const* prompt)
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

#if defined(_WIN32)

bool isInputTerminal()
{
    return _isatty(_fileno(stdin)) != 0;
}

LineReader::LineReader(lua_State*) : isEditing_(false) {}

LineReader::~LineReader() = default;

std::optional<std::string> LineReader::read(char const* prompt)
{
    return readPlainly(prompt);
}

#else

namespace {

constexpr int maxHistory = 1000;

struct Free {
    void operator()(char* text) const { std::free(text); }
};

// The line editor passes its callbacks no data: the state to complete from, while a reader is alive.
lua_State* completed = nullptr;

char* copy(std::string const& text)
{
    auto* result = static_cast<char*>(std::malloc(text.size() + 1));
    if (result)
        std::memcpy(result, text.c_str(), text.size() + 1);
    return result;
}

/// The completions in the editor's form: the common start, then each, then null.
char** complete(char const* word, int, int)
{
    rl_attempted_completion_over = 1; // no file names
    std::vector<std::string> const names = completions(completed, word);
    if (names.empty())
        return nullptr;
    auto** list = static_cast<char**>(std::calloc(names.size() + 2, sizeof(char*)));
    if (!list)
        return nullptr;
    list[0] = copy(commonStart(names));
    for (std::size_t i = 0; i < names.size(); ++i)
        list[i + 1] = copy(names[i]);
    return list;
}

} // namespace

bool isInputTerminal()
{
    return isatty(STDIN_FILENO) == 1;
}

LineReader::LineReader(lua_State* L) : isEditing_(isInputTerminal())
{
    if (!isEditing_)
        return;
    std::setlocale(LC_CTYPE, "");
    completed = L;
    rl_readline_name = "velmara";
    static char breaks[] = " \t\n\"'`@$><=;|&{}()[]+-*/%^#~,";
    rl_basic_word_break_characters = breaks;
    rl_completer_word_break_characters = breaks;
    rl_completion_append_character = '\0';
    rl_attempted_completion_function = complete;
    using_history();
    stifle_history(maxHistory);
    if (char const* home = std::getenv("HOME")) {
        history_ = std::filesystem::path(home) / ".velmara_history";
        read_history(history_.c_str());
    }
}

LineReader::~LineReader()
{
    completed = nullptr;
}

std::optional<std::string> LineReader::read(char const* prompt)
{
    if (!isEditing_)
        return readPlainly(prompt);
    std::unique_ptr<char, Free> const line(readline(prompt));
    if (!line)
        return std::nullopt;
    std::string text(line.get());
    if (text.find_first_not_of(" \t") != text.npos) {
        add_history(text.c_str());
        if (!history_.empty())
            write_history(history_.c_str()); // now: a script may end the process
    }
    return text;
}

#endif

} // namespace velmara::console
