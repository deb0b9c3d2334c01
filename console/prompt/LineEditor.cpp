#include "prompt/LineEditor.hpp"

#if !defined(_WIN32)

#include "help/Completion.hpp"
#include "help/Expression.hpp"
#include "scripts/Interruption.hpp"
#include "terminal/Terminal.hpp"
#include "text/Paragraph.hpp"

#include <editline/readline.h>
#include <unistd.h>

#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <exception>
#include <memory>
#include <string_view>
#include <vector>

namespace velmara::console {

namespace {

constexpr int maxHistory = 1000;

struct Free {
    void operator()(char* text) const { std::free(text); }
};

// The line editor passes its callbacks no data: the state to complete from, while an editor is alive.
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

/// The first `count` characters of the UTF-8 text.
std::string_view firstCharacters(std::string_view text, int count)
{
    std::size_t length = 0;
    for (; length < text.size() && (count > 0 || (text[length] & 0xC0) == 0x80); ++length)
        count -= (text[length] & 0xC0) != 0x80 ? 1 : 0;
    return text.substr(0, length);
}

/// Shows the lines below the one that is edited, which follows once more.
void showBelow(std::vector<std::string> const& lines)
{
    std::string text = "\n";
    for (std::string const& line : lines)
        text += paragraph(line, 0, 4);
    std::fwrite(text.data(), 1, text.size(), rl_outstream);
    rl_forced_update_display();
}

/// The completions in the editor's form: the common start, then each, then null.
char** editorList(std::vector<std::string> const& names)
{
    auto** list = names.empty() ? nullptr : static_cast<char**>(std::calloc(names.size() + 2, sizeof(char*)));
    if (!list)
        return nullptr;
    list[0] = copy(commonStart(names));
    for (std::size_t i = 0; i < names.size(); ++i)
        list[i + 1] = copy(names[i]);
    return list;
}

char** complete(char const* word, int, int end)
try {
    rl_attempted_completion_over = 1; // no file names
    std::string_view const text = firstCharacters(rl_line_buffer, end);
    if (std::vector<std::string> const signatures = signaturesAt(completed, text); !signatures.empty()) {
        showBelow(signatures);
        return nullptr;
    }
    // What the editor takes for the word may begin with letters of other languages.
    bool const isName = identifierLength(text) == std::string_view(word).size();
    return isName ? editorList(completions(completed, text)) : nullptr;
} catch (std::exception const&) {
    return nullptr; // there is no memory, and the editor passes no exceptions
}

/// The prompt in its style, in the form of the editor: what takes no room on the screen is in brackets.
std::string styled(std::string const& prompt)
{
    if (!hasStyles(stdout))
        return prompt;
    std::size_t const length = prompt.find_last_not_of(' ') + 1;
    return std::string(1, RL_PROMPT_START_IGNORE)
        .append(startOf(Style::Prompt))
        .append(1, RL_PROMPT_END_IGNORE)
        .append(prompt, 0, length)
        .append(1, RL_PROMPT_START_IGNORE)
        .append(endOfStyle)
        .append(1, RL_PROMPT_END_IGNORE)
        .append(prompt, length);
}

} // namespace

LineEditor::LineEditor(lua_State* L, std::filesystem::path history) : L_(L), history_(std::move(history))
{
    std::setlocale(LC_CTYPE, "");
    if (MB_CUR_MAX == 1)
        std::setlocale(LC_CTYPE, "C.UTF-8");
    completed = L_;
    rl_readline_name = "velmara";
    static char breaks[] = " \t\n\"'`@$><=;|&{}()[]+-*/%^#~,.:!?\\";
    rl_basic_word_break_characters = breaks;
    rl_completer_word_break_characters = breaks;
    rl_completion_append_character = '\0';
    rl_getc_function = readKey;
    rl_attempted_completion_function = complete;
    using_history();
    stifle_history(maxHistory);
    if (!history_.empty())
        read_history(history_.c_str());
}

LineEditor::~LineEditor()
{
    completed = nullptr;
}

std::optional<std::string> LineEditor::read(std::string const& prompt)
{
    std::unique_ptr<char, Free> const text(readline(styled(prompt).c_str()));
    if (!text)
        return std::nullopt;
    std::string line(text.get());
    remember(line);
    return line;
}

void LineEditor::remember(std::string const& line)
{
    if (line.find_first_not_of(" \t") == line.npos || line == latest_)
        return;
    latest_ = line;
    add_history(line.c_str());
    if (!history_.empty())
        write_history(history_.c_str()); // now: a script may end the process
}

} // namespace velmara::console

#endif
