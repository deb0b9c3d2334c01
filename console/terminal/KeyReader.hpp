#pragma once

#if !defined(_WIN32)
#include <termios.h>
#endif

namespace velmara::console {

/// Reads single keys from the terminal of standard input: while one is alive, without a line's end and not shown.
class KeyReader {
public:
    /// What `read` returns at the end of input, and for Ctrl-C.
    static constexpr int end = -1;

    KeyReader();
    KeyReader(KeyReader const&) = delete;
    KeyReader& operator=(KeyReader const&) = delete;
    ~KeyReader();

    /// Waits for the next key; returns its first byte.
    int read();

#if !defined(_WIN32)
private:
    termios previous_{};
#endif
};

} // namespace velmara::console
