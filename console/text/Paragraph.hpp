#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmara::console {

/// A non-breaking space in the text of a paragraph.
inline constexpr char nonBreakingSpace = '\1';

/// The text wrapped at 80 columns between words, each line with its end: the first one indented by `indent`, the others
/// by `hanging`. Line breaks in the text stay.
std::string paragraph(std::string_view text, std::size_t indent, std::size_t hanging);

} // namespace velmara::console
