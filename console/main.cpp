#include "Console.hpp"
#include "ExitCode.hpp"
#include "Output.hpp"
#include "Platform.hpp"
#include "terminal/Terminal.hpp"

#include <cstdio>

namespace {

using namespace velmara::console;

int run(CommandLine line)
{
    using Task = CommandLine::Task;
    if (line.task == Task::Help || line.task == Task::Version) {
        std::fputs(line.task == Task::Help ? usageText : "velmara " VELMARA_VERSION "\n", stdout);
        return finishOutput(exitSuccess);
    }
    if (line.task == Task::Prompt && !line.asksForPrompt) {
        line.asksForPrompt = isTerminal(stdin);
        if (!line.asksForPrompt) {
            line.task = Task::Script;
            line.script = "-";
        }
    }
    Session session(line);
    return session.finish(
        runConsole(session, line, line.loadsBuiltIn ? moduleBesideProgram("orbis_factory") : std::filesystem::path()));
}

} // namespace

int main(int count, char** words)
{
    occupyStandardStreams();
    useUtf8Console();
    try {
        return run(parseCommandLine(commandLineWords(count, words)));
    } catch (UsageError const& error) {
        std::fprintf(stderr, "velmara: %s\nTry velmara --help.\n", error.what());
        return exitUsage;
    } catch (std::exception const& error) {
        std::fprintf(stderr, "velmara: %s\n", error.what());
        return exitScriptError;
    }
}
