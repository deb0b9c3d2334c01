#pragma once

#include <set>
#include <string>

namespace velmara::console {

/// Names for files of one folder that differ on every system, also where upper and lower case are one.
class FileNames {
public:
    /// Returns `wanted`, or that with a number behind it when an earlier name is the same.
    std::string add(std::string const& wanted);

private:
    std::set<std::string> taken_; ///< in lower case
};

} // namespace velmara::console
