#pragma once

#include "orbis/COSNameID.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace orbis {

/// One name of the process-wide name table. It is never freed, so its address is the name's identity.
struct InternedName {
    std::uint64_t hash;
    std::size_t length;
    char const* text;

    std::string_view view() const { return {text, length}; }
    std::string string() const { return {text, length}; }
};

} // namespace orbis

namespace velmara {

using Name = orbis::InternedName const*;

/// The interned name, created when it is new. Known names are found without a lock or an allocation.
Name intern(std::string_view text);

/// The interned name, or null when the text was never interned. Names that come from scripts are only looked up.
Name findInterned(std::string_view text);

} // namespace velmara
