#pragma once

#include "libhv/hvArray.hpp"
#include "orbis_host_export.hpp"

#include <functional>
#include <string>
#include <typeinfo>
#include <vector>

namespace orbis::host_extensions {

/// A value that goes with an error.
struct ErrorField {
    std::string name; ///< by which scripts read it

    /// Inside a handler of the exception: returns a new array, owned by the caller; null for no value.
    std::function<hvArray_tag*()> read;
};

/// What scripts learn of native exceptions of one type.
struct ErrorKind {
    std::string identifier;               ///< such as "spatial:parse"
    std::string package;                  ///< full name of the one that lists it; empty for none
    std::type_info const* type = nullptr; ///< of the exceptions

    /// Inside a handler: stores the text of the current exception and returns true if that is of this type or derived
    /// from it. Throws `std::bad_alloc` only.
    std::function<bool(std::string& text)> describe;

    std::vector<ErrorField> fields = {}; ///< a field that cannot be read is left out
};

/// Adds a kind to those of the current virtual machine, and replaces the earlier one of its type. An exception is of
/// the kind of its own type or else of the last added one that it is derived from; exceptions with a message identifier
/// keep it. The functions stay callable as long as the virtual machine. Threading: on the thread of the virtual
/// machine.
ORBIS_HOST_API void addErrorKind(ErrorKind kind);

} // namespace orbis::host_extensions
