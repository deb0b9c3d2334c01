#include "scripts/ErrorReport.hpp"

#include "help/Subject.hpp"
#include "lua/ScriptError.hpp"
#include "lua/ScriptFailure.hpp"
#include "lua/ScriptFrames.hpp"
#include "lua/Table.hpp"
#include "terminal/Terminal.hpp"

#include "velmara/Error.hpp"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace velmara::console {

namespace {

/// An error in the form that is shown.
struct Report {
    std::string identifier;
    std::string text;
    std::string position; ///< "FILE:LINE", when the error itself has it
};

/// A line for each error that led to the one at `index`, unless that has their texts itself.
std::string causes(lua_State* L, int index)
{
    std::string text;
    bool isTold = fieldText(L, index, "identifier") == "VELMARA:native:exception";
    int const top = lua_gettop(L);
    lua_pushvalue(L, index);
    for (int depth = 0; depth < 8; ++depth) {
        lua_pushliteral(L, "cause");
        lua_rawget(L, -2);
        if (!isError(L, -1))
            break;
        lua_remove(L, -2);
        int const cause = lua_gettop(L);
        if (!isTold)
            text += "\n  because of " + fieldText(L, cause, "identifier") + ": " + fieldText(L, cause, "text");
        isTold = fieldText(L, cause, "identifier") == "VELMARA:native:exception";
    }
    lua_settop(L, top);
    return text;
}

/// The length of "FILE:LINE" in front of a text, where Lua puts it; 0 where there is none.
std::size_t positionLength(std::string const& text)
{
    auto const isDigit = [](unsigned char c) { return std::isdigit(c) != 0; };
    for (std::size_t end = text.find(": "); end != text.npos; end = text.find(": ", end + 1)) {
        std::size_t const colon = text.rfind(':', end - 1);
        if (end > 0 && colon != text.npos && colon + 1 < end &&
            std::all_of(text.begin() + static_cast<std::ptrdiff_t>(colon) + 1,
                        text.begin() + static_cast<std::ptrdiff_t>(end), isDigit))
            return end;
    }
    return 0;
}

/// "; did you mean ...?" for Lua's error on a global that is nil; empty for other errors.
std::string suggestion(lua_State* L, std::string const& text)
{
    constexpr std::string_view before = "a nil value (global '";
    std::size_t const start = text.find(before);
    if (start == text.npos || !text.ends_with("')"))
        return {};
    std::size_t const name = start + before.size();
    return closeNames(L, text.substr(name, text.size() - 2 - name));
}

Report reportOf(lua_State* L, int index, std::string const& identifier)
{
    if (isError(L, index))
        return {fieldText(L, index, "identifier"), fieldText(L, index, "text") + causes(L, index),
                fieldText(L, index, "where")};
    Report report{identifier, errorText(L, index), {}};
    if (std::size_t const length = lua_isstring(L, index) ? positionLength(report.text) : 0) {
        report.position = report.text.substr(0, length);
        report.text.erase(0, length + 2);
        report.text += suggestion(L, report.text);
    }
    return report;
}

std::string format(Report const& report, std::vector<ScriptFrame> const& frames, std::size_t maxFrames)
{
    std::string text = report.identifier + ": " + report.text;
    if (!report.position.empty() && (frames.empty() || frames.front().position != report.position))
        text += "\n  at " + report.position;
    for (std::size_t i = 0; i < std::min(frames.size(), maxFrames); ++i) {
        text += "\n  at " + frames[i].position;
        if (!frames[i].function.empty())
            text += " in " + frames[i].function;
    }
    return frames.size() > maxFrames ? text + "\n  ..." : text;
}

} // namespace

int reportError(lua_State* L)
{
    constexpr std::size_t maxFrames = 8;
    luaL_checkstack(L, 10, nullptr);
    lua_settop(L, 1);
    pushText(L, format(reportOf(L, 1, scriptErrorIdentifier), failureFrames(L, 1, scriptFrames(L, 1, maxFailureFrames)),
                       maxFrames));
    return 1;
}

std::string describeError(lua_State* L, int index, int status)
{
    index = lua_absindex(L, index);
    std::string const identifier = status == LUA_ERRSYNTAX ? "VELMARA:script:syntax"
                                   : status == LUA_ERRMEM  ? Error::outOfMemory().identifier()
                                                           : scriptErrorIdentifier;
    return format(reportOf(L, index, identifier), {}, 0);
}

void printReport(std::string_view text)
{
    std::size_t const identifier = std::min(text.find(": "), text.size());
    std::fflush(stdout);
    writeStyled(stderr, Style::Error, text.substr(0, identifier));
    std::fprintf(stderr, "%.*s\n", static_cast<int>(text.size() - identifier), text.data() + identifier);
    std::fflush(stderr);
}

} // namespace velmara::console
