#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace velmara::console {

/// Makes a Windows console show and give UTF-8 until the process ends, as others do. Call once.
void useUtf8Console();

/// The words after the program's name on the command line, in UTF-8.
std::vector<std::string> commandLineWords(int count, char** words);

/// The file of the module `name`: beside the running program, or in the library folder of the installation; empty when
/// there is none.
std::filesystem::path moduleBesideProgram(std::string const& name);

} // namespace velmara::console
