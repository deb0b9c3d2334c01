#pragma once

#include "velmara/Hvm.hpp"

#include <string>

namespace velmara::console {

/// All packages with what is in each of them, and what is published at the top level.
std::string overviewText(Hvm& hvm);

} // namespace velmara::console
