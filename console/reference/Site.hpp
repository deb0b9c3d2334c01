#pragma once

#include "velmara/Hvm.hpp"

#include <filesystem>
#include <span>
#include <string>

namespace velmara::console {

enum class SiteFormat { Html, Markdown };

/// Writes into `folder`, which is created where it is missing, the reference of the packages and of all that is in
/// them: a page for each package and class, with an index. The same packages give the same files. Throws an `Error` for
/// a name that is no package, and when a file cannot be written; some may be written then.
void writeSite(Hvm& hvm, std::filesystem::path const& folder, std::span<std::string const> packages, SiteFormat format);

} // namespace velmara::console
