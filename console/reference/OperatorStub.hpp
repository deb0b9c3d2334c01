#pragma once

#include "reference/StubTypes.hpp"

#include "velmara/Listing.hpp"

#include <string>

namespace velmara::console {

/// Annotations of the operators and of the indexing that members of the class make up, a line each. Comparisons have
/// none: editors take them as given.
std::string operatorLines(ClassRecord const& cls, StubTypes const& types);

} // namespace velmara::console
