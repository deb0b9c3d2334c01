#pragma once

#include "reference/Page.hpp"
#include "reference/PageLinks.hpp"

namespace velmara::console {

/// All that a class tells of itself.
Page classPage(ClassRecord const& cls, PageLinks const& links);

/// The functions of a package.
Section functionSection(PackageRecord const& package, PageLinks const& links);

} // namespace velmara::console
