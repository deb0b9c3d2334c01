#include "reference/FileNames.hpp"

#include <algorithm>

namespace velmara::console {

std::string FileNames::add(std::string const& wanted)
{
    std::string name = wanted;
    for (int i = 2;; ++i) {
        std::string lower = name;
        std::ranges::transform(lower, lower.begin(),
                               [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
        if (taken_.insert(std::move(lower)).second)
            return name;
        name = wanted + '-' + std::to_string(i);
    }
}

} // namespace velmara::console
