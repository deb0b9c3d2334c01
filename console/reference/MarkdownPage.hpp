#pragma once

#include "reference/Page.hpp"

#include <string>

namespace velmara::console {

/// The page as Markdown.
std::string markdownPage(Page const& page);

} // namespace velmara::console
