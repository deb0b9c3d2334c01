#pragma once

#include "modules/SharedLibrary.hpp"

#include "velmara/Listing.hpp"

#include <filesystem>
#include <string>

namespace velmara {

/// A module of a virtual machine: a shared library with the module entry points. Its code stays mapped while this
/// lives, also after it was terminated.
class Module {
public:
    /// Maps the file; nothing of the module runs but its static initialization. Throws
    /// "VELMARA:module:noEntryPoint" for a library without the entry points of the module `name`.
    Module(std::filesystem::path const& file, std::string name);

    std::string const& name() const { return record_.name; }
    std::filesystem::path const& file() const { return file_; }
    ModuleRecord const& record() const { return record_; }
    bool isLoaded() const { return isLoaded_; }

    /// Adds the module's texts and runs its initialization; it is loaded when that succeeds. When it fails, what it
    /// published is removed again, and what it throws becomes an `Error` that names the module.
    void initialize();

    /// The module stays loaded when this fails; likewise.
    void terminate();

    /// The same, but what the module throws is passed on as it is, which needs no memory.
    void terminateRaw();

private:
    using EntryPoint = void (*)();

    EntryPoint entryPoint(std::string const& prefix) const;
    std::string versionWord(char const* suffix) const;

    /// Inside a handler: throws the failure with the identifier that it has, in the sentence `key`.
    [[noreturn]] void rethrowFailure(char const* key) const;

    /// Adds the texts that the module brings to the current virtual machine's catalogs.
    void addMessages() const;

    std::filesystem::path file_;
    ModuleRecord record_;
    SharedLibrary library_;
    EntryPoint initialize_;
    EntryPoint terminate_;
    bool isLoaded_ = false;
};

/// The name of the module in a file: its stem without a leading "lib" and a version after it.
std::string moduleName(std::filesystem::path const& file);

} // namespace velmara
