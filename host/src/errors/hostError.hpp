#pragma once

#include <string>
#include <vector>

namespace velmara {

/// Throws the host's own error `catalog:key`; its text is in hostMessages.cpp. Both names are literals.
[[noreturn]] void throwHostError(char const* catalog, char const* key, std::vector<std::string> arguments = {});

} // namespace velmara
