#pragma once

#include <span>

namespace velmara {

/// One text of the host's own message catalogs; {0}, {1}, ... stand for the arguments.
struct HostMessage {
    char const* catalog;
    char const* key;
    char const* text;
};

/// All of the host's own texts.
std::span<HostMessage const> hostMessages();

} // namespace velmara
