#include "system/SharedLibrary.hpp"

#include "system/pathText.hpp"
#include "values/hostError.hpp"

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace velmara {

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

} // namespace

SharedLibrary::SharedLibrary(std::filesystem::path const& file)
    : handle_(LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH))
{
    if (!handle_)
        throwHostError("VELMARA:module", "cannotLoad", {pathText(file), lastErrorText()});
}

SharedLibrary::~SharedLibrary()
{
    FreeLibrary(static_cast<HMODULE>(handle_));
}

void* SharedLibrary::find(std::string const& symbol) const
{
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle_), symbol.c_str()));
}

#else

SharedLibrary::SharedLibrary(std::filesystem::path const& file) : handle_(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL))
{
    if (!handle_) {
        char const* const reason = dlerror();
        throwHostError("VELMARA:module", "cannotLoad", {pathText(file), reason ? reason : ""});
    }
}

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
