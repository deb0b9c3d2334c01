#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace velmara::console {

/// What the console was started for.
struct CommandLine {
    enum class Task { Script, Code, Prompt, Stubs, Document, Help, Version };

    Task task = Task::Prompt;
    std::string script;                 ///< a file, "-" for standard input; for `Task::Code` the code
    std::vector<std::string> arguments; ///< the script's own
    std::string folder;                 ///< for what is written
    std::vector<std::string> packages;  ///< that it is written about
    std::vector<std::string> modules;   ///< files to load
    bool writesMarkdown = false;
    bool loadsBuiltIn = true;
    bool isRestricted = false; ///< runs an untrusted script
    bool checksLeaks = false;
    bool reportsLeaks = false;
    bool asksForPrompt = false;
    bool pagesOutput = true; ///< of the prompt
};

class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Throws `UsageError` with a sentence for the user.
CommandLine parseCommandLine(std::vector<std::string> const& words);

extern char const* const usageText;

} // namespace velmara::console
