#pragma once

#include "reference/Page.hpp"
#include "reference/PublishedRecords.hpp"

#include <span>

namespace velmara::console {

/// A page that lists the packages, called "index", and one for each package and class.
std::vector<Page> pagesOf(std::span<PublishedRecords const> roots);

} // namespace velmara::console
