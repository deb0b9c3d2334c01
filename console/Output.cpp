#include "Output.hpp"

#include "ExitCode.hpp"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <initializer_list>

#if !defined(_WIN32)
#include <fcntl.h>
#include <unistd.h>
#endif

namespace velmara::console {

#if defined(_WIN32)
void occupyStandardStreams() {}
#else
void occupyStandardStreams()
{
    for (int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) == -1)
            open("/dev/null",
                 stream == STDIN_FILENO ? O_WRONLY : O_RDONLY); // opens the lowest free number, which is this one
}
#endif

int finishOutput(int code)
{
    errno = 0;
    bool const isWritten = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    if (isWritten)
        return code;
    std::fprintf(stderr, "velmara: cannot write the output: %s\n",
                 errno != 0 ? std::strerror(errno) : "some of it was lost");
    std::clearerr(stdout); // so that it is reported once
    return code == exitSuccess ? exitOutput : code;
}

} // namespace velmara::console
