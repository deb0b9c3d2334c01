#pragma once

#include "text/ascii.hpp"

#include <cstddef>
#include <string_view>

namespace velmara {

/// Between UTF-8 and UTF-16. Ill-formed input becomes U+FFFD: one for each maximal part of a UTF-8 sequence that could
/// have gone on, one for each lone UTF-16 surrogate.
std::size_t convertedSize(std::string_view utf8);
std::size_t convertedSize(std::u16string_view utf16);

/// Writes as many units as `convertedSize` says.
void convert(std::string_view utf8, char16_t* out);
void convert(std::u16string_view utf16, char* out);

template <class Char, class Allocate, class MemoryOf>
[[gnu::noinline]] auto convertNonAscii(std::basic_string_view<Char> text, Allocate allocate, MemoryOf memoryOf)
{
    auto result = allocate(convertedSize(text));
    convert(text, memoryOf(result));
    return result;
}

/// Converts a text to `memoryOf(result)`, where the result is `allocate(size)` for just its size. ASCII is the quick
/// case.
template <class Char, class Allocate, class MemoryOf>
auto convertTo(std::basic_string_view<Char> text, Allocate allocate, MemoryOf memoryOf)
{
    if (!isAscii(text)) [[unlikely]]
        return convertNonAscii(text, allocate, memoryOf);
    auto result = allocate(text.size());
    copyAscii(text, memoryOf(result));
    return result;
}

} // namespace velmara
