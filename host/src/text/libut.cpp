#include "libut/libut.hpp"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

#if defined(_WIN32)
/// The Windows run-time prints pointers zero-filled and without 0x. This lets it print them as numbers: %15p
/// becomes %#15llx. A null pointer is then 0.
std::string portableFormat(std::string_view format)
{
    std::string portable;
    while (!format.empty()) {
        std::size_t const start = std::min(format.find('%'), format.size());
        portable += format.substr(0, start);
        format.remove_prefix(start);
        if (format.empty())
            break;
        std::size_t const conversion =
            std::min(format.find_first_not_of("-+ #0123456789.*'hlLqjzt", 1), format.size() - 1);
        if (format[conversion] == 'p')
            portable.append("%#").append(format.substr(1, conversion - 1)).append("llx");
        else
            portable += format.substr(0, conversion + 1);
        format.remove_prefix(conversion + 1);
    }
    return portable;
}

int print(char const* format, va_list arguments)
{
    return std::vprintf(portableFormat(format).c_str(), arguments);
}
#else
int print(char const* format, va_list arguments)
{
    return std::vprintf(format, arguments);
}
#endif

} // namespace

int utPrintf(char const* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    int const printed = print(format, arguments);
    va_end(arguments);
    return printed;
}

void utFree(void* memory)
{
    std::free(memory);
}
