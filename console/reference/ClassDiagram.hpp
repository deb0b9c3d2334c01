#pragma once

#include "reference/ReferencePage.hpp"

#include <span>
#include <string>

namespace velmara::console {

/// The classes that are derived from each other, as an SVG element: a box for each, below its superclasses. Empty when
/// there are none.
std::string classDiagram(std::span<DiagramClass const> classes);

} // namespace velmara::console
