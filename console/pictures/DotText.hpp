#pragma once

#include "pictures/Picture.hpp"

#include <string>

namespace velmara::console {

/// The picture in the language of Graphviz. It names no file and has no text of a script but as text.
std::string dotText(Picture const& picture);

} // namespace velmara::console
