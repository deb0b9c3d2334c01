#include "prompt/LineReader.hpp"

#include "help/Completion.hpp"
#include "scripts/Interruption.hpp"
#include "terminal/Terminal.hpp"

#if !defined(_WIN32)
#include <editline/readline.h>
#include <unistd.h>
#endif

#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <iostream>
#include <memory>

namespace velmara::console {

namespace {

/// What has ended the reading of a line.
LineReader::Result endOfReading()
{
    if (!InterruptHandler::takeInterrupt())
        return LineReader::Result::End;
    std::cin.clear();
    std::clearerr(stdin);
    std::puts("^C");
    return LineReader::Result::Interrupted;
}

LineReader::Result readPlainly(char const* prompt, std::string& line)
{
    std::cout << prompt << std::flush;
    if (!std::getline(std::cin, line))
        return endOfReading();
    if (line.ends_with('\r'))
        line.pop_back();
    return LineReader::Result::Line;
}

} // namespace

#if defined(_WIN32)

LineReader::LineReader(lua_State*) : isEditing_(false) {}

LineReader::~LineReader() = default;

LineReader::Result LineReader::read(char const* prompt, std::string& line)
{
    return readPlainly(prompt, line);
}

#else

namespace {

constexpr int maxHistory = 1000;

struct Free {
    void operator()(char* text) const { std::free(text); }
};

// The line editor passes its callbacks no data: the state to complete from, while a reader is alive.
lua_State* completed = nullptr;

/// The next character for the editor, which is a wide one; EOF at the end of input, and after Ctrl-C.
int readKey(std::FILE*)
{
    std::mbstate_t state = {};
    for (;;) {
        char byte = 0;
        ssize_t const length = InterruptHandler::hasInterrupt() ? 0 : ::read(STDIN_FILENO, &byte, 1);
        if (length == 0 || (length < 0 && errno != EINTR))
            return EOF;
        if (length < 0)
            continue;
        wchar_t character = 0;
        std::size_t const used = std::mbrtowc(&character, &byte, 1, &state);
        if (used == static_cast<std::size_t>(-1))
            state = {}; // not a character of the terminal's
        else if (used != static_cast<std::size_t>(-2))
            return static_cast<int>(character);
    }
}

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

LineReader::LineReader(lua_State* L) : isEditing_(isTerminal(stdin))
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
    rl_getc_function = readKey;
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

LineReader::Result LineReader::read(char const* prompt, std::string& line)
{
    if (!isEditing_)
        return readPlainly(prompt, line);
    std::unique_ptr<char, Free> const text(readline(prompt));
    if (!text)
        return endOfReading();
    line = text.get();
    if (line.find_first_not_of(" \t") != line.npos) {
        add_history(line.c_str());
        if (!history_.empty())
            write_history(history_.c_str()); // now: a script may end the process
    }
    return Result::Line;
}

#endif

} // namespace velmara::console
