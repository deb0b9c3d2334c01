#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace velmara::console {

/// The columns that a UTF-8 text takes, one for each character: its bytes without the continuation bytes.
inline std::size_t displayWidth(std::string_view text)
{
    return static_cast<std::size_t>(std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; }));
}

} // namespace velmara::console
