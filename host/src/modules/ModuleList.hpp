#pragma once

#include "modules/Module.hpp"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmara {

/// The modules of one virtual machine, in the order in which they were loaded. Each operation needs that virtual
/// machine to be current.
class ModuleList {
public:
    /// Loads a module and initializes it. One that is loaded, or was, is only initialized again. Throws
    /// "VELMARA:module:otherFile" when a module of its name was loaded from another file.
    Module const& load(std::filesystem::path const& file);

    /// Throws "VELMARA:module:notLoaded" when it is not loaded.
    void unload(std::string_view name);

    std::vector<ModuleRecord> records() const;

    /// A module's name, and why it failed to terminate.
    using FailureReport = std::function<void(std::string const&, char const*)>;

    /// Terminates what is loaded, the last one first. `report`, which may be empty and throws nothing, is called with
    /// each that fails. Needs no memory.
    void terminateAll(FailureReport const& report) noexcept;

private:
    Module& open(std::filesystem::path const& file);

    std::vector<std::unique_ptr<Module>> modules_; ///< those that were terminated included
};

} // namespace velmara
