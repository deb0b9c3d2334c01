#pragma once

#include "reference/ReferencePage.hpp"

#include <string>

namespace velmara::console {

/// The page as an HTML document, which uses the files of `siteStyle` and `siteScript` beside it.
std::string htmlPage(ReferencePage const& page);

} // namespace velmara::console
