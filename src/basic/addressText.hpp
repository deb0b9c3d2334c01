#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace orbis::factory {

/// Formats an address: "0x7f3c10".
inline std::string addressText(void const* address)
{
    char text[32];
    std::snprintf(text, sizeof text, "0x%llx",
                  static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(address)));
    return text;
}

} // namespace orbis::factory
