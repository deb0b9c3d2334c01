#pragma once

#include <cstdint>

namespace velmara {

/// What `COSDataType::compareValues` returns.
inline constexpr std::uint32_t equal = 0;
inline constexpr std::uint32_t before = 0xFFFFFFFF;
inline constexpr std::uint32_t after = 1;
inline constexpr std::uint32_t unordered = 2;

template <class T>
std::uint32_t orderOf(T const& a, T const& b)
{
    return a == b ? equal : a < b ? before : a > b ? after : unordered;
}

} // namespace velmara
