#include "Console.hpp"

#include "ExitCode.hpp"
#include "arrays/ArrayFunctions.hpp"
#include "bindings/EnumerationFunction.hpp"
#include "bindings/ModuleFunctions.hpp"
#include "bindings/ObjectBinding.hpp"
#include "bindings/ObjectFunctions.hpp"
#include "bindings/ProxyBinding.hpp"
#include "bindings/SnapshotFunctions.hpp"
#include "help/HelpFunctions.hpp"
#include "lua/ScriptError.hpp"
#include "pictures/GraphFunction.hpp"
#include "prompt/Prompt.hpp"
#include "reference/Site.hpp"
#include "reference/Stubs.hpp"
#include "scripts/ErrorReport.hpp"
#include "scripts/Interruption.hpp"
#include "scripts/ScriptLibraries.hpp"
#include "scripts/ScriptRunner.hpp"
#include "scripts/TimedCalls.hpp"
#include "show/ObjectText.hpp"
#include "show/ShowFunction.hpp"
#include "values/ErrorFields.hpp"

#include <cstdio>

namespace velmara::console {

namespace {

struct Run {
    Session& session;
    CommandLine const& line;
    std::filesystem::path const& builtIn;
    std::string const& code; ///< of the script
    int exitCode = exitScriptError;
};

void prepare(lua_State* L, Run const& run)
{
    if (run.line.isRestricted)
        openRestrictedLibraries(L);
    else {
        openScriptLibraries(L);
        run.session.bindExit();
        bindModuleFunctions(L);
    }
    bindArrayFunctions(L);
    bindObjectMembers(L);
    bindErrorFields(L);
    bindObjectFunctions(L);
    bindSnapshotFunctions(L);
    bindObjectText(L);
    bindShowFunction(L);
    bindGraphFunction(L, run.line.isRestricted);
    bindEnumerationFunction(L);
    bindTimedCalls(L);
    bindHelpFunctions(L);
    bindPublishedNames(L);
    if (!run.builtIn.empty())
        run.session.host().hvm().loadModule(run.builtIn);
    for (std::string const& file : run.line.modules)
        run.session.host().hvm().loadModule(std::u8string(file.begin(), file.end()));
}

/// Runs the script or code of the command line.
int runGiven(lua_State* L, Run const& run)
{
    CommandLine const& line = run.line;
    InterruptibleRun const interruptible(L);
    bool const isDone =
        line.task == CommandLine::Task::Code
            ? runScript(L, line.script, "=-e", "-e", line.arguments)
            : runScript(L, run.code, line.script == "-" ? "=stdin" : '@' + line.script, line.script, line.arguments);
    if (isDone)
        return exitSuccess;
    return InterruptibleRun::isInterrupted() ? exitInterrupted : exitScriptError;
}

void writeReference(Run const& run)
{
    CommandLine const& line = run.line;
    Hvm& hvm = run.session.host().hvm();
    std::u8string const folder(line.folder.begin(), line.folder.end());
    if (line.task == CommandLine::Task::Stubs)
        writeStubs(hvm, folder, line.packages);
    else
        writeSite(hvm, folder, line.packages, line.writesMarkdown ? SiteFormat::Markdown : SiteFormat::Html);
}

int runTask(lua_State* L, Run const& run)
{
    if (!run.line.packages.empty()) {
        writeReference(run);
        return exitSuccess;
    }
    InterruptHandler const handler;
    int const code = run.line.task == CommandLine::Task::Prompt ? exitSuccess : runGiven(L, run);
    if (run.line.asksForPrompt)
        runPrompt(L, {.pagesOutput = run.line.pagesOutput, .keepsHistory = !run.line.isRestricted});
    return code;
}

int start(lua_State* L)
{
    Run& run = *static_cast<Run*>(lua_touserdata(L, 1));
    prepare(L, run);
    run.exitCode = runTask(L, run);
    return 0;
}

} // namespace

int runConsole(Session& session, CommandLine const& line, std::filesystem::path const& builtIn)
{
    std::string code;
    if (line.task == CommandLine::Task::Script)
        try {
            code = readScript(line.script);
        } catch (std::system_error const& error) {
            std::fprintf(stderr, "velmara: cannot read %s: %s\n", line.script.c_str(), error.code().message().c_str());
            return exitUsage;
        }
    Run run{session, line, builtIn, code};
    lua_State* L = session.lua();
    lua_pushcfunction(L, guarded<start>);
    lua_pushlightuserdata(L, &run);
    if (int const status = lua_pcall(L, 1, 0, 0); status != LUA_OK) {
        printReport(describeError(L, -1, status));
        return exitScriptError;
    }
    return run.exitCode;
}

} // namespace velmara::console
