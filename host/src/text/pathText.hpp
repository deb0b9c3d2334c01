#pragma once

#include <filesystem>
#include <string>

namespace velmara {

/// A path in UTF-8, for texts.
inline std::string pathText(std::filesystem::path const& path)
{
    std::u8string const text = path.u8string();
    return {reinterpret_cast<char const*>(text.data()), text.size()};
}

} // namespace velmara
