#pragma once

#include <cstddef>
#include <string_view>

namespace velmara {

/// Between UTF-8 and UTF-16 in two steps, so that the text is written once and to where it stays: first its size
/// in the other form, then the text itself to a place of that size. Ill-formed input becomes U+FFFD: one for each
/// maximal part of a UTF-8 sequence that could have gone on, one for each lone UTF-16 surrogate.
std::size_t sizeAsUtf16(std::string_view utf8);
char16_t* writeAsUtf16(std::string_view utf8, char16_t* out); ///< gives the end of what it wrote

std::size_t sizeAsUtf8(std::u16string_view utf16);
char* writeAsUtf8(std::u16string_view utf16, char* out);

} // namespace velmara
