#include "prompt/Prompt.hpp"

#include "lua/ScriptError.hpp"
#include "prompt/DisplayText.hpp"
#include "prompt/LineReader.hpp"
#include "scripts/ErrorReport.hpp"
#include "scripts/Interruption.hpp"
#include "scripts/ScriptRunner.hpp"
#include "terminal/Pager.hpp"

#include <cstdio>
#include <string>

namespace velmara::console {

namespace {

constexpr char const* chunkName = "=prompt";

/// Pushes the input as a function, compiled as an expression if possible, else as statements; or the error.
int load(lua_State* L, std::string const& input)
{
    std::string const expression = input.starts_with('=') ? input.substr(1) : input;
    if (loadScript(L, "return " + expression, chunkName) == LUA_OK)
        return LUA_OK;
    lua_pop(L, 1);
    return loadScript(L, input, chunkName);
}

bool isUnfinished(lua_State* L, int status)
{
    return status == LUA_ERRSYNTAX && textAt(L, -1).ends_with("<eof>");
}

/// Reads lines until they form a chunk, and pushes its function; pushes nothing when there was an error, which is
/// reported, or Ctrl-C. False at the end of input.
bool readChunk(lua_State* L, LineReader& reader)
{
    using Result = LineReader::Result;
    std::string input;
    Result result = reader.read("> ", input);
    if (result != Result::Line)
        return result == Result::Interrupted;
    int status = load(L, input);
    for (std::string next; isUnfinished(L, status); status = load(L, input.append(1, '\n').append(next))) {
        result = reader.read(">> ", next);
        if (result == Result::End)
            break;
        lua_pop(L, 1);
        if (result == Result::Interrupted)
            return true;
    }
    if (status == LUA_OK)
        return true;
    printReport(describeError(L, -1, status));
    lua_pop(L, 1);
    return true;
}

int show(lua_State* L)
{
    int const count = lua_gettop(L);
    std::string line;
    for (int i = 1; i <= count; ++i)
        line += (i > 1 ? "\t" : "") + displayText(L, i);
    printPaged(L, line += '\n');
    return 0;
}

void runChunk(lua_State* L, int base)
{
    InterruptibleRun const run(L);
    if (!callScript(L, 0))
        return;
    int const results = lua_gettop(L) - base;
    if (results == 0)
        return;
    lua_pushcfunction(L, guarded<show>);
    lua_insert(L, base + 1);
    callScript(L, results);
}

} // namespace

void runPrompt(lua_State* L, PromptOptions const& options)
{
    if (options.pagesOutput)
        enablePaging(L);
    LineReader reader(L, options.keepsHistory ? historyFile() : std::filesystem::path());
    std::puts("velmara: help() tells what there is; end with Ctrl-D.");
    int const base = lua_gettop(L);
    while (readChunk(L, reader)) {
        if (lua_gettop(L) > base)
            runChunk(L, base);
        lua_settop(L, base);
        std::fflush(stdout);
    }
    std::puts("");
}

} // namespace velmara::console
