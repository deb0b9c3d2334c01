#pragma once

namespace velmara::console {

/// The style sheet of the pages.
extern char const* const siteStyle;

/// The search, which looks through the constant `entries`: works for files that no server sends.
extern char const* const siteScript;

} // namespace velmara::console
