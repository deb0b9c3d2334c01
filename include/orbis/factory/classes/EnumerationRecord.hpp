#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSClass.hpp"

#include <cstdint>
#include <span>

namespace orbis::factory {

/// The description of a native enumeration, without its type. All texts are literals.
struct EnumerationRecord {
    /// An enumerator by one of its names.
    struct Entry {
        char const* name;   ///< in scripts
        std::int64_t value; ///< of the native enumerator
    };

    char const* hostName;           ///< the class's full dotted name
    std::span<Entry const> entries; ///< in the order of description
    std::span<Entry const> byValue; ///< sorted by value; equal values in the order of description
};

/// Adds the enumerators to the host class, which is an enumeration. Call it from the class info's `initializeClass`.
/// Errors of the host propagate.
ORBIS_FACTORY_API void publish(COSClass* cls, EnumerationRecord const& enumeration);

} // namespace orbis::factory
