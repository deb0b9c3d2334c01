#pragma once

#include "reference/PageLinks.hpp"
#include "reference/ReferencePage.hpp"

namespace velmara::console {

/// All that a class tells of itself.
ReferencePage classPage(ClassRecord const& cls, PageLinks const& links);

/// The functions of a package.
PageSection functionSection(PackageRecord const& package, PageLinks const& links);

} // namespace velmara::console
