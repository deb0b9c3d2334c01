#include "prompt/LineEditor.hpp"

#if defined(_WIN32)

#include "help/Completion.hpp"
#include "help/Expression.hpp"
#include "scripts/Interruption.hpp"
#include "terminal/Terminal.hpp"
#include "text/Paragraph.hpp"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

namespace velmara::console {

namespace {

std::string toUtf8(std::wstring const& text)
{
    auto const length = static_cast<int>(text.size());
    std::string result(text.size() * 3, '\0');
    int const size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(),
                                         static_cast<int>(result.size()), nullptr, nullptr);
    result.resize(static_cast<std::size_t>(size));
    return result;
}

void write(std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
}

void writePrompt(std::string const& prompt)
{
    writeStyled(stdout, Style::Prompt, prompt);
    std::fflush(stdout);
}

/// Reads until Enter or Tab, which stay at the end, and lets the console edit what `line` has already. False at the end
/// of input, and after Ctrl-C.
bool readConsole(std::wstring& line)
{
    std::array<wchar_t, 8192> buffer;
    line.resize(std::min(line.size(), buffer.size() - 1));
    std::ranges::copy(line, buffer.begin());
    CONSOLE_READCONSOLE_CONTROL control = {sizeof control, static_cast<ULONG>(line.size()), 1U << '\t', 0};
    DWORD length = 0;
    if (!ReadConsoleW(GetStdHandle(STD_INPUT_HANDLE), buffer.data(), static_cast<DWORD>(buffer.size()), &length,
                      &control))
        return false;
    line.assign(buffer.data(), length);
    constexpr DWORD patience = 200; // milliseconds
    for (DWORD waited = 0; length == 0 && waited < patience && !InterruptHandler::hasInterrupt(); ++waited)
        Sleep(1);                                           // the handler of Ctrl-C runs in a thread of its own
    return length > 0 && !InterruptHandler::hasInterrupt(); // there are consoles that go on after Ctrl-C
}

/// Names or signatures below the line; they do not run any code of the script.
void showBelow(std::vector<std::string> const& lines, std::string const& prompt, std::string const& text)
{
    std::string shown = "\n";
    for (std::string const& line : lines)
        shown += paragraph(line, 0, 4);
    write(shown);
    writePrompt(prompt);
    write(text);
}

std::string listOf(std::vector<std::string> const& names)
{
    std::string list;
    for (std::string const& name : names)
        list.append(list.empty() ? "" : "  ").append(name);
    return list;
}

/// What Tab adds to the line.
std::string complete(lua_State* L, std::string const& prompt, std::string const& text)
{
    std::vector<std::string> const signatures = signaturesAt(L, text);
    std::vector<std::string> const names = signatures.empty() ? completions(L, text) : std::vector<std::string>();
    std::string const added = names.empty() ? std::string() : commonStart(names).substr(identifierLength(text));
    if (!signatures.empty())
        showBelow(signatures, prompt, text);
    else if (names.size() > 1 && added.empty())
        showBelow({listOf(names)}, prompt, text);
    write(added);
    return added;
}

} // namespace

LineEditor::LineEditor(lua_State* L, std::filesystem::path) : L_(L) {}

LineEditor::~LineEditor() = default;

std::optional<std::string> LineEditor::read(std::string const& prompt)
{
    constexpr wchar_t controlZ = 26;
    writePrompt(prompt);
    std::wstring line;
    while (readConsole(line)) {
        if (line.ends_with(L'\n')) {
            line.resize(line.find_last_not_of(L"\r\n") + 1);
            return line.starts_with(controlZ) ? std::nullopt : std::optional(toUtf8(line));
        }
        std::erase(line, L'\t');
        std::string const added = complete(L_, prompt, toUtf8(line)); // of ASCII
        line.append(added.begin(), added.end());
    }
    return std::nullopt;
}

} // namespace velmara::console

#endif
