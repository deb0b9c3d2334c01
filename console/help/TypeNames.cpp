#include "help/TypeNames.hpp"

#include <algorithm>
#include <cctype>

namespace velmara::console {

TypeNames namesIn(std::string const& dataType)
{
    TypeNames names;
    auto const isPart = [](unsigned char c) { return std::isalnum(c) != 0 || c == '_' || c == '.'; };
    for (auto begin = dataType.begin(); begin != dataType.end();) {
        begin = std::find_if(begin, dataType.end(), isPart);
        auto const end = std::find_if_not(begin, dataType.end(), isPart);
        if (begin != end)
            names.emplace(begin, end);
        begin = end;
    }
    return names;
}

} // namespace velmara::console
