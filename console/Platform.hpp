#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace velmara::console {

/// The words after the program's name on the command line, in UTF-8.
std::vector<std::string> commandLineWords(int count, char** words);

/// The module `name` beside the running program or in the installed libraries' folder beside the program's; empty when
/// there is none.
std::filesystem::path moduleBesideProgram(std::string const& name);

} // namespace velmara::console
