#pragma once

#include <set>
#include <string>

namespace velmara::console {

using TypeNames = std::set<std::string>;

/// The names in a data type: "palette.Color" and "vector" in "palette.Color vector".
TypeNames namesIn(std::string const& dataType);

} // namespace velmara::console
