#include "pictures/TemporaryFile.hpp"

#include <cerrno>
#include <system_error>

#if defined(_WIN32)
#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include <array>
#endif

namespace velmara::console {

namespace {

#if defined(_WIN32)

struct HandleCloser {
    void operator()(HANDLE file) const { CloseHandle(file); }
};

/// Null when it cannot be opened. `std::tmpfile` would want to write to the root of the drive.
std::FILE* openTemporaryFile()
{
    std::array<wchar_t, MAX_PATH + 1> folder{};
    std::array<wchar_t, MAX_PATH + 1> name{};
    if (GetTempPathW(folder.size(), folder.data()) == 0 || GetTempFileNameW(folder.data(), L"vel", 0, name.data()) == 0)
        return nullptr;
    SECURITY_ATTRIBUTES inheritable{sizeof inheritable, nullptr, TRUE};
    HANDLE const opened = CreateFileW(name.data(), GENERIC_READ | GENERIC_WRITE | DELETE,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, &inheritable,
                                      CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (opened == INVALID_HANDLE_VALUE)
        return nullptr;
    std::unique_ptr<void, HandleCloser> file(opened);
    int const descriptor = _open_osfhandle(reinterpret_cast<std::intptr_t>(opened), _O_BINARY | _O_RDWR);
    if (descriptor < 0)
        return nullptr;
    static_cast<void>(file.release()); // the descriptor owns it
    std::FILE* const stream = _fdopen(descriptor, "w+b");
    if (!stream)
        _close(descriptor);
    return stream;
}

#else

std::FILE* openTemporaryFile()
{
    return std::tmpfile();
}

#endif

void require(bool isDone)
{
    if (!isDone)
        throw std::system_error(errno, std::generic_category(), "a temporary file cannot be written");
}

} // namespace

TemporaryFile::TemporaryFile() : stream_(openTemporaryFile())
{
    require(stream_ != nullptr);
}

void TemporaryFile::write(std::string_view text) // NOLINT(readability-make-member-function-const)
{
    bool const isWritten = std::fwrite(text.data(), 1, text.size(), stream()) == text.size();
    require(isWritten && std::fflush(stream()) == 0);
    std::rewind(stream());
}

std::string TemporaryFile::contents() const
{
    std::rewind(stream());
    std::string text;
    char block[4096];
    while (std::size_t const count = std::fread(block, 1, sizeof block, stream()))
        text.append(block, count);
    return text;
}

} // namespace velmara::console
