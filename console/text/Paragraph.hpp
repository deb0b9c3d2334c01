#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmara::console {

/// Stands in a paragraph's text for a blank that no line ends at.
inline constexpr char firmBlank = '\1';

/// The text in lines of at most 80 columns where its words allow it, each with its end: the first one indented by
/// `indent`, the others by `hanging`. Line ends in the text stay.
std::string paragraph(std::string_view text, std::size_t indent, std::size_t hanging);

} // namespace velmara::console
