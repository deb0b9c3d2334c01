#pragma once

#include "velmara/Hvm.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace velmara::console {

/// A package with all that is in it.
struct PublishedRecords {
    std::vector<PackageRecord> packages; ///< each before those in it
    std::vector<ClassRecord> classes;    ///< by packages
};

/// Throws an `Error` when no package has that name.
PublishedRecords recordsOf(Hvm& hvm, std::string const& package);

} // namespace velmara::console
