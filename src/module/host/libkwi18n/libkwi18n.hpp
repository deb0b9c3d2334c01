#pragma once

#include "orbis_host_export.hpp"

#include <string>

namespace fl {

/// UTF-16 text.
using ustring = std::u16string;

namespace i18n {

/// UTF-16 to UTF-8. Each code unit that is no part of well-formed UTF-16 becomes U+FFFD.
ORBIS_HOST_API std::string to_string(std::u16string const& text);

/// UTF-8 to UTF-16. Each maximal ill-formed part of a sequence becomes U+FFFD.
ORBIS_HOST_API std::u16string to_ustring(std::string const& text);

} // namespace i18n
} // namespace fl
