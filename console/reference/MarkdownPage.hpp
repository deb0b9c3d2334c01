#pragma once

#include "reference/ReferencePage.hpp"

#include <string>

namespace velmara::console {

/// The page as Markdown.
std::string markdownPage(ReferencePage const& page);

} // namespace velmara::console
