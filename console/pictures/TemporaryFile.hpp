#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace velmara::console {

/// A file without a name, or with one that nobody knows; deleted at its end. On Windows children can inherit it.
/// Throws `std::system_error` when the system refuses.
class TemporaryFile {
public:
    TemporaryFile();

    std::FILE* stream() const { return stream_.get(); }

    /// Writes the text, and goes back to the beginning.
    void write(std::string_view text);

    /// All that is in the file, by whomever it was written.
    std::string contents() const;

private:
    struct Closer {
        void operator()(std::FILE* stream) const { std::fclose(stream); }
    };

    std::unique_ptr<std::FILE, Closer> stream_;
};

} // namespace velmara::console
