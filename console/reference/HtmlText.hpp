#pragma once

#include <string>
#include <string_view>

namespace velmara::console {

/// The text as it stands between tags and in quoted attributes.
std::string htmlText(std::string_view text);

} // namespace velmara::console
