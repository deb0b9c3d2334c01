#include "reference/OutputFile.hpp"

#include "lua/ScriptError.hpp"

#include <fstream>
#include <system_error>

namespace velmara::console {

void writeFile(std::filesystem::path const& file, std::string_view contents)
{
    std::error_code ignored; // the file cannot be opened then
    std::filesystem::create_directories(file.parent_path(), ignored);
    std::ofstream stream(file, std::ios::binary);
    stream.write(contents.data(), static_cast<std::streamsize>(contents.size()));
    stream.close();
    if (!stream) {
        auto const name = file.u8string();
        fail("output", "cannot write " + std::string(name.begin(), name.end()));
    }
}

} // namespace velmara::console
