#pragma once

#include <string_view>

namespace velmara {

/// The host's own text of a message, in which {0}, {1}, ... stand for the arguments; null when there is none.
char const* findHostMessage(std::string_view catalog, std::string_view key);

} // namespace velmara
