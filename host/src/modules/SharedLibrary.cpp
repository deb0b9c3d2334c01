#include "modules/SharedLibrary.hpp"

#include "errors/MessageCatalog.hpp"
#include "errors/hostError.hpp"
#include "modules/imageSize.hpp"
#include "text/pathText.hpp"

#include <fstream>

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace velmara {

namespace {

/// A file that is shorter than its headers say would be mapped, and kill the process when the missing part is touched.
void requireComplete(std::filesystem::path const& file)
{
    std::ifstream content(file, std::ios::binary);
    std::uintmax_t const needed = imageSize(content);
    std::error_code failed;
    std::uintmax_t const size = std::filesystem::file_size(file, failed);
    if (!failed && size < needed)
        throwHostError(
            "VELMARA:module", "cannotLoad",
            {pathText(file), messageText("VELMARA:module", "cutOff", {std::to_string(size), std::to_string(needed)})});
}

void* mapLibrary(std::filesystem::path const& file);

} // namespace

SharedLibrary::SharedLibrary(std::filesystem::path const& file)
{
    requireComplete(file);
    handle_ = mapLibrary(file);
}

#if defined(_WIN32)

namespace {

std::string lastErrorText()
{
    char text[512] = {};
    DWORD const code = GetLastError();
    DWORD length = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0, text,
                                  sizeof text, nullptr);
    while (length > 0 && (text[length - 1] == '\n' || text[length - 1] == '\r'))
        --length;
    return length > 0 ? std::string(text, length) : "error " + std::to_string(code);
}

void* mapLibrary(std::filesystem::path const& file)
{
    void* const handle = LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (!handle)
        throwHostError("VELMARA:module", "cannotLoad", {pathText(file), lastErrorText()});
    return handle;
}

} // namespace

SharedLibrary::~SharedLibrary()
{
    FreeLibrary(static_cast<HMODULE>(handle_));
}

void* SharedLibrary::find(std::string const& symbol) const
{
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle_), symbol.c_str()));
}

#else

namespace {

void* mapLibrary(std::filesystem::path const& file)
{
    void* const handle = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        char const* const reason = dlerror();
        throwHostError("VELMARA:module", "cannotLoad", {pathText(file), reason ? reason : ""});
    }
    return handle;
}

} // namespace

SharedLibrary::~SharedLibrary()
{
    dlclose(handle_);
}

void* SharedLibrary::find(std::string const& symbol) const
{
    return dlsym(handle_, symbol.c_str());
}

#endif

} // namespace velmara
