#include "pictures/ChildProgram.hpp"

#if defined(_WIN32)

#include <windows.h>

#include <io.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <system_error>
#include <vector>

namespace velmara::console {

namespace {

void requireDone(bool isDone)
{
    if (!isDone)
        throw std::system_error(static_cast<int>(GetLastError()), std::system_category(),
                                "a program cannot be started");
}

HANDLE handleOf(TemporaryFile const& file)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(file.stream())));
}

/// Has a child inherit these handles and no others.
class InheritedHandles {
public:
    /// `handles` must outlive this.
    explicit InheritedHandles(std::array<HANDLE, 3>& handles)
    {
        SIZE_T size = 0;
        InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        memory_.resize(size);
        requireDone(InitializeProcThreadAttributeList(get(), 1, 0, &size) != 0);
        requireDone(UpdateProcThreadAttribute(get(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles.data(),
                                              sizeof handles, nullptr, nullptr) != 0);
    }
    InheritedHandles(InheritedHandles const&) = delete;
    InheritedHandles& operator=(InheritedHandles const&) = delete;
    ~InheritedHandles() { DeleteProcThreadAttributeList(get()); }

    LPPROC_THREAD_ATTRIBUTE_LIST get() { return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(memory_.data()); }

private:
    std::vector<std::byte> memory_;
};

} // namespace

std::filesystem::path findProgram(std::string const& name)
{
    wchar_t const* const path = _wgetenv(L"PATH");
    std::wstring_view left = path ? path : L"";
    while (!left.empty()) {
        std::filesystem::path const folder = left.substr(0, left.find(L';'));
        left.remove_prefix(std::min(folder.native().size() + 1, left.size()));
        std::filesystem::path file = folder / (name + ".exe");
        std::error_code ignored;
        if (folder.is_absolute() && std::filesystem::is_regular_file(file, ignored))
            return file;
    }
    return {};
}

ChildProgram::ChildProgram(std::filesystem::path const& file, std::string const& argument, std::string_view input)
{
    input_.write(input);
    std::array<HANDLE, 3> handles{handleOf(input_), handleOf(output_), handleOf(errors_)};
    InheritedHandles inherited(handles);
    STARTUPINFOEXW start{};
    start.StartupInfo.cb = sizeof start;
    start.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
    start.StartupInfo.hStdInput = handles[0];
    start.StartupInfo.hStdOutput = handles[1];
    start.StartupInfo.hStdError = handles[2];
    start.lpAttributeList = inherited.get();
    std::wstring line = L'"' + file.native() + L"\" " + std::filesystem::path(argument).native();
    PROCESS_INFORMATION created{};
    requireDone(CreateProcessW(file.c_str(), line.data(), nullptr, nullptr, TRUE, EXTENDED_STARTUPINFO_PRESENT, nullptr,
                               nullptr, &start.StartupInfo, &created) != 0);
    CloseHandle(created.hThread);
    process_ = reinterpret_cast<std::intptr_t>(created.hProcess);
}

ChildProgram::~ChildProgram()
{
    if (process_ == 0)
        return;
    auto* const process = reinterpret_cast<HANDLE>(process_);
    TerminateProcess(process, 1);
    WaitForSingleObject(process, INFINITE);
    CloseHandle(process);
}

bool ChildProgram::waitFor(std::chrono::milliseconds time)
{
    if (process_ == 0)
        return true;
    auto* const process = reinterpret_cast<HANDLE>(process_);
    if (WaitForSingleObject(process, static_cast<DWORD>(time.count())) == WAIT_TIMEOUT)
        return false;
    DWORD exitCode = 1;
    hasSucceeded_ = GetExitCodeProcess(process, &exitCode) != 0 && exitCode == 0;
    CloseHandle(process);
    process_ = 0;
    return true;
}

} // namespace velmara::console

#endif
