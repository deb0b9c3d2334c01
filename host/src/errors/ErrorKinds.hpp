#pragma once

#include "velmara/Error.hpp"

#include "host_extensions/ErrorKind.hpp"

#include <optional>
#include <vector>

namespace velmara {

/// The kinds of native exceptions that modules added to a virtual machine.
class ErrorKinds {
public:
    /// Replaces an earlier kind of the same type.
    void add(orbis::host_extensions::ErrorKind kind);

    /// Destroys them, while the modules' code is there.
    void clear() noexcept { kinds_.clear(); }

    /// Inside a handler: the current exception as an error of its kind; nothing when it has none.
    std::optional<Error> describeCurrent() const;

    std::vector<orbis::host_extensions::ErrorKind> const& all() const { return kinds_; }

private:
    std::vector<orbis::host_extensions::ErrorKind> kinds_;
};

} // namespace velmara
