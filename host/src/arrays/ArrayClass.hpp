#pragma once

#include "host_extensions/functionValues.hpp"
#include "libhv/hvArray.hpp"

#include <string_view>

namespace velmara {

/// What the host knows of one array class.
struct ArrayClass {
    std::string_view name;   ///< what `hvIsA` and error texts call it; objects have their class's name instead
    std::size_t elementSize; ///< 0 when there are no arrays of it
};

inline constexpr std::size_t classCount = orbis::host_extensions::functionClass + 1;

/// True for the numeric, logical and character classes, whose elements own nothing.
constexpr bool hasPlainElements(hvClassID id)
{
    return id >= hvLOGICAL_CLASS && id <= hvUINT64_CLASS;
}

/// Also answers for numbers that are no class id: as `hvUNKNOWN_CLASS`.
ArrayClass const& arrayClass(hvClassID id);

} // namespace velmara
