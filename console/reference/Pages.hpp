#pragma once

#include "reference/PublishedRecords.hpp"
#include "reference/ReferencePage.hpp"

#include <span>

namespace velmara::console {

/// A page that lists the packages, called "index", and one for each package and class.
std::vector<ReferencePage> pagesOf(std::span<PublishedRecords const> roots);

} // namespace velmara::console
