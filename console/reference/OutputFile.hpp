#pragma once

#include <filesystem>
#include <string_view>

namespace velmara::console {

/// Writes the file as it is, over one of that name, and the folders to it. Throws an `Error` when that fails.
void writeFile(std::filesystem::path const& file, std::string_view contents);

} // namespace velmara::console
