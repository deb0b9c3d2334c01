#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSClass.hpp"

#include <cstdint>
#include <span>

namespace orbis::factory {

/// A native enumeration as it is described, without its type. All texts live as long as the program (they are
/// literals).
struct EnumerationRecord {
    struct Entry {
        char const* name;
        std::int64_t value;
    };

    char const* hostName;           ///< the class's full dotted name
    std::span<Entry const> entries; ///< in the order of description
    std::span<Entry const> byValue; ///< in ascending order of the values, else in the order of description
};

/// Gives the host class, an enumeration, its enumerators. To be called by the class info's `initializeClass`. Errors of
/// the host pass through.
ORBIS_FACTORY_API void publish(COSClass* cls, EnumerationRecord const& enumeration);

} // namespace orbis::factory
