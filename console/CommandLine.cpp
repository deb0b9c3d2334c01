#include "CommandLine.hpp"

#include <span>

namespace velmara::console {

char const* const usageText = R"(Usage: velmara [options] [FILE.lua [arguments]]

Runs the script FILE.lua; "-" reads it from standard input. Without a script, a
prompt (a script from standard input where that is no terminal). The arguments
are in `arg` and `...`.

  -e CODE [arguments]  run CODE
  -i                   a prompt after the script or code; without these a prompt
                       also where standard input is no terminal
  --module PATH        load the module at PATH first; may be repeated
  --no-builtin         do not load the built-in module orbis_factory
  --no-pager           do not stop long output of the prompt at each full screen
  --restricted         for scripts of strangers: no files, processes, modules
  --check-leaks        check at the end that nothing of the host is left
  --report-leaks       name at the end each native object that is still bound, and
                       objects that native code still holds, by class and line
  --stubs DIR PACKAGE...  write files into DIR that let an editor complete and
                       check scripts for these packages
  --document PACKAGE... -o DIR
                       write the reference of these packages into DIR, as pages
                       for a browser; with -f markdown as Markdown
  --help, --version

Exit codes: 0 success; 1 a script or module failed ("identifier: text" and
where in the script go to standard error); 2 wrong options or a script that
cannot be read; 3 --check-leaks found something; 4 output was lost; 130 Ctrl-C ended the
script.

At a terminal, errors and the prompt are coloured unless NO_COLOR is set, and the
prompt keeps its history in VELMARA_HISTORY, or in ~/.velmara_history; in none
with --restricted, or where VELMARA_HISTORY is empty.
)";

namespace {

using Words = std::span<std::string const>;

std::string const& take(Words& words)
{
    std::string const& first = words.front();
    words = words.subspan(1);
    return first;
}

std::string const& takeValue(Words& words, std::string const& option)
{
    if (words.empty())
        throw UsageError("the option " + option + " needs a value");
    return take(words);
}

/// Options of what the console writes of packages; false for another option.
bool parseWritingOption(CommandLine& line, std::string const& option, Words& words)
{
    using Task = CommandLine::Task;
    bool const isOfDocument = line.task == Task::Document;
    if (option == "--document")
        line.task = Task::Document;
    else if (option == "--stubs") {
        line.task = Task::Stubs;
        line.folder = takeValue(words, option);
    } else if (option == "-o" && isOfDocument)
        line.folder = takeValue(words, option);
    else if (option == "-f" && isOfDocument) {
        std::string const& format = takeValue(words, option);
        if (format != "html" && format != "markdown")
            throw UsageError("the format " + format + " is not known: it is html or markdown");
        line.writesMarkdown = format == "markdown";
    } else
        return false;
    return true;
}

void parseOption(CommandLine& line, std::string const& option, Words& words)
{
    using Task = CommandLine::Task;
    if (option == "-e") {
        line.task = Task::Code;
        line.script = takeValue(words, option);
    } else if (option == "-i")
        line.asksForPrompt = true;
    else if (option == "--module")
        line.modules.push_back(takeValue(words, option));
    else if (option == "--no-builtin")
        line.loadsBuiltIn = false;
    else if (option == "--restricted")
        line.isRestricted = true;
    else if (option == "--no-pager")
        line.pagesOutput = false;
    else if (option == "--check-leaks")
        line.checksLeaks = true;
    else if (option == "--report-leaks")
        line.reportsLeaks = true;
    else if (parseWritingOption(line, option, words))
        return;
    else if (option == "--help" || option == "-h")
        line.task = Task::Help;
    else if (option == "--version")
        line.task = Task::Version;
    else
        throw UsageError("unknown option " + option);
}

/// Whether the task is to write of packages.
bool takesPackages(CommandLine::Task task)
{
    return task == CommandLine::Task::Stubs || task == CommandLine::Task::Document;
}

/// The packages, which options may stand between.
void parsePackages(CommandLine& line, Words words)
{
    bool areOptionsOver = false;
    while (!words.empty()) {
        std::string const& word = take(words);
        if (areOptionsOver || !word.starts_with('-'))
            line.packages.push_back(word);
        else if (word == "--")
            areOptionsOver = true;
        else
            parseOption(line, word, words);
    }
    if (!takesPackages(line.task)) // but one of another option, such as --help
        return line.packages.clear();
    if (line.packages.empty())
        throw UsageError("the names of packages are needed");
    if (line.folder.empty())
        throw UsageError("-o and a folder are needed");
}

} // namespace

CommandLine parseCommandLine(std::vector<std::string> const& words)
{
    CommandLine line;
    Words left(words);
    while (line.task == CommandLine::Task::Prompt && !left.empty() && left.front().starts_with('-') &&
           left.front() != "-") {
        std::string const& option = take(left);
        if (option == "--")
            break;
        parseOption(line, option, left);
    }
    if (takesPackages(line.task)) {
        parsePackages(line, left);
        return line;
    }
    if (line.task == CommandLine::Task::Prompt && !left.empty()) {
        line.task = CommandLine::Task::Script;
        line.script = take(left);
    }
    if (line.asksForPrompt && line.script == "-")
        throw UsageError("-i reads a prompt from standard input: the script cannot come from there, too");
    line.arguments.assign(left.begin(), left.end());
    return line;
}

} // namespace velmara::console
