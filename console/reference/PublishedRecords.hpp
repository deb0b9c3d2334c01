#pragma once

#include "velmara/Hvm.hpp"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmara::console {

/// A package with all that is in it.
struct PublishedRecords {
    std::vector<PackageRecord> packages; ///< each before those in it
    std::vector<ClassRecord> classes;    ///< by packages
};

/// Returns those of each package, but for one that is in another or named twice. Throws an `Error` when no package has
/// a name.
std::vector<PublishedRecords> recordsOf(Hvm& hvm, std::span<std::string const> packages);

} // namespace velmara::console
