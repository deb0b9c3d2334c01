#pragma once

#include "velmara/Hvm.hpp"

#include <string>

namespace velmara::console {

/// What has the text in its name or its description, whatever the case of its letters: names with descriptions, in 80
/// columns. Empty when there is none.
std::string aproposText(Hvm& hvm, std::string_view text);

} // namespace velmara::console
