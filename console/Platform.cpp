#include "Platform.hpp"

#include <cstdlib>

#if defined(_WIN32)
#include <windows.h>

#include <shellapi.h>
#endif

namespace velmara::console {

#if defined(_WIN32)

namespace {

constexpr char const* modulePrefix = "";
constexpr char const* moduleSuffix = ".dll";

std::filesystem::path programPath()
{
    constexpr DWORD maxPathLength = 32768;
    std::wstring path(maxPathLength, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), maxPathLength));
    return path;
}

} // namespace

void useUtf8Console()
{
    static UINT const output = GetConsoleOutputCP(); // what was before
    static UINT const input = GetConsoleCP();
    SetConsoleOutputCP(CP_UTF8);
    SetConsoleCP(CP_UTF8);
    std::atexit([] {
        SetConsoleOutputCP(output);
        SetConsoleCP(input);
    });
}

std::vector<std::string> commandLineWords(int, char**)
{
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> result;
    for (int i = 1; i < count; ++i) {
        std::u8string const word = std::filesystem::path(words[i]).u8string();
        result.emplace_back(word.begin(), word.end());
    }
    LocalFree(words);
    return result;
}

#else

namespace {

constexpr char const* modulePrefix = "lib";
constexpr char const* moduleSuffix = ".so";

std::filesystem::path programPath()
{
    return std::filesystem::read_symlink("/proc/self/exe");
}

} // namespace

void useUtf8Console() {}

std::vector<std::string> commandLineWords(int count, char** words)
{
    return {words + std::min(count, 1), words + count};
}

#endif

std::filesystem::path moduleBesideProgram(std::string const& name)
{
    std::filesystem::path const folder = programPath().parent_path();
    for (std::filesystem::path const& candidate : {folder, folder.parent_path() / VELMARA_LIBRARY_FOLDER}) {
        std::filesystem::path file = candidate / (modulePrefix + name + moduleSuffix);
        if (std::filesystem::exists(file))
            return file;
    }
    return {};
}

} // namespace velmara::console
