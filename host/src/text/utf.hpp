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

template <class Char, class Allocate>
[[gnu::noinline]] auto convertNonAscii(std::basic_string_view<Char> text, Allocate const& allocate)
{
    auto* const out = allocate(convertedSize(text));
    convert(text, out);
    return out;
}

/// Converts a text to memory of just its size, which `allocate(size)` returns. ASCII is the quick case.
template <class Char, class Allocate>
auto convertTo(std::basic_string_view<Char> text, Allocate const& allocate)
{
    if (!isAscii(text)) [[unlikely]]
        return convertNonAscii(text, allocate);
    auto* const out = allocate(text.size());
    copyAscii(text, out);
    return out;
}

} // namespace velmara
