#pragma once

#include <filesystem>
#include <string>

namespace velmara {

/// A shared library that is mapped while this lives.
class SharedLibrary {
public:
    /// Throws "VELMARA:module:cannotLoad" with the system's reason.
    explicit SharedLibrary(std::filesystem::path const& file);
    SharedLibrary(SharedLibrary const&) = delete;
    SharedLibrary& operator=(SharedLibrary const&) = delete;
    ~SharedLibrary();

    /// The address of an exported function or data word, or null.
    void* find(std::string const& symbol) const;

private:
    void* handle_;
};

} // namespace velmara
