#pragma once

#include "text/ascii.hpp"

#include <cstddef>
#include <string_view>

namespace velmara {

/// Between UTF-8 and UTF-16 in two steps, so that the text is written once and to where it stays: first its size in the
/// other form, then the text itself to memory of that size. Ill-formed input becomes U+FFFD: one for each maximal part
/// of a UTF-8 sequence that could have gone on, one for each lone UTF-16 surrogate.
std::size_t sizeAsUtf16(std::string_view utf8);
void writeAsUtf16(std::string_view utf8, char16_t* out);

std::size_t sizeAsUtf8(std::u16string_view utf16);
void writeAsUtf8(std::u16string_view utf16, char* out);

/// Both steps; `allocate(size)` returns the memory.
template <class Allocate>
void convertToUtf16(std::string_view utf8, Allocate const& allocate)
{
    if (isAscii(utf8)) [[likely]]
        copyAscii(utf8, allocate(utf8.size()));
    else
        writeAsUtf16(utf8, allocate(sizeAsUtf16(utf8)));
}

template <class Allocate>
void convertToUtf8(std::u16string_view utf16, Allocate const& allocate)
{
    if (isAscii(utf16)) [[likely]]
        copyAscii(utf16, allocate(utf16.size()));
    else
        writeAsUtf8(utf16, allocate(sizeAsUtf8(utf16)));
}

} // namespace velmara
