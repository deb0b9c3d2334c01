#pragma once

#include "orbis_host_export.hpp"

#include <string>

/// Texts of the host.
namespace fl {

/// UTF-16 text.
using ustring = std::u16string;

/// Text between its two forms. Text that is not well-formed has the same result everywhere in the host: one U+FFFD for
/// each maximal subpart of an ill-formed sequence, as Unicode recommends. What is well-formed around it stays.
namespace i18n {

/// UTF-16 to UTF-8. Each surrogate without its partner becomes one U+FFFD.
ORBIS_HOST_API std::string to_string(std::u16string const& text);

/// UTF-8 to UTF-16. The longest beginning of a character that breaks off becomes one U+FFFD, as does each byte that
/// begins none: bytes of overlong forms, of surrogates, of what lies above U+10FFFF, and lone continuation bytes.
ORBIS_HOST_API std::u16string to_ustring(std::string const& text);

} // namespace i18n
} // namespace fl
