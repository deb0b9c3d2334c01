#include "scripts/ScriptRunner.hpp"

#include "lua/Table.hpp"
#include "scripts/ErrorReport.hpp"

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace velmara::console {

namespace {

/// Without a byte-order mark and a first line with "#" (which names a script's interpreter). Keeps that line's end, so
/// that line numbers are right.
std::string_view withoutHeader(std::string_view code)
{
    if (code.starts_with("\xEF\xBB\xBF"))
        code.remove_prefix(3);
    if (code.starts_with('#'))
        code.remove_prefix(std::min(code.find('\n'), code.size()));
    return code;
}

void setArguments(lua_State* L, std::string const& name, std::vector<std::string> const& arguments)
{
    pushSequence(L, arguments.size(), [&](std::size_t i) { pushText(L, arguments[i]); });
    pushText(L, name);
    lua_rawseti(L, -2, 0);
    lua_setglobal(L, "arg");
}

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::FILE* openFile(std::filesystem::path const& file)
{
#if defined(_WIN32)
    return _wfopen(file.c_str(), L"rb");
#else
    return std::fopen(file.c_str(), "rbe");
#endif
}

[[noreturn]] void failReading()
{
    throw std::system_error(errno, std::generic_category());
}

std::string readAll(std::FILE* file)
{
    std::string content;
    std::array<char, 4096> part;
    while (std::size_t const length = std::fread(part.data(), 1, part.size(), file))
        content.append(part.data(), length);
    if (std::ferror(file))
        failReading();
    return content;
}

} // namespace

int loadScript(lua_State* L, std::string_view code, std::string const& chunkName)
{
    return luaL_loadbufferx(L, code.data(), code.size(), chunkName.c_str(), "t");
}

bool callScript(lua_State* L, int arguments)
{
    int const base = lua_gettop(L) - arguments;
    lua_pushcfunction(L, reportError);
    lua_insert(L, base);
    int const status = lua_pcall(L, arguments, LUA_MULTRET, base);
    lua_remove(L, base);
    if (status == LUA_OK)
        return true;
    printReport(status == LUA_ERRRUN ? std::string(textAt(L, -1)) : describeError(L, -1, status));
    lua_pop(L, 1);
    return false;
}

bool runScript(lua_State* L, std::string_view code, std::string const& chunkName, std::string const& name,
               std::vector<std::string> const& arguments)
{
    setArguments(L, name, arguments);
    int const status = loadScript(L, withoutHeader(code), chunkName);
    if (status != LUA_OK) {
        printReport(describeError(L, -1, status));
        lua_pop(L, 1);
        return false;
    }
    int const base = lua_gettop(L);
    luaL_checkstack(L, static_cast<int>(arguments.size()) + 1, "too many arguments");
    for (std::string const& argument : arguments)
        pushText(L, argument);
    bool const isDone = callScript(L, static_cast<int>(arguments.size()));
    lua_settop(L, base - 1);
    return isDone;
}

std::string readScript(std::string const& file)
{
    if (file == "-")
        return readAll(stdin);
    std::unique_ptr<std::FILE, FileCloser> const stream(openFile(std::u8string(file.begin(), file.end())));
    if (!stream)
        failReading();
    return readAll(stream.get());
}

} // namespace velmara::console
