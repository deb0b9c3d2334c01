#pragma once

#include "velmara/Hvm.hpp"

#include <filesystem>
#include <span>
#include <string>

namespace velmara::console {

/// Writes into `folder`, which is created where it is missing, a file of Lua with annotations for editors for each of
/// the packages, with all that is in it, and one for the console's own functions. Throws an `Error` for a name that is
/// no package, and when a file cannot be written; some may be written then.
void writeStubs(Hvm& hvm, std::filesystem::path const& folder, std::span<std::string const> packages);

} // namespace velmara::console
