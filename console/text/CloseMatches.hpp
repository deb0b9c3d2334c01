#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmara::console {

/// The known names closest to `name`, at most three; none when none is close.
std::vector<std::string> closeMatches(std::string_view name, std::vector<std::string> const& known);

/// "; did you mean getSum or getSums?"; empty for no names.
std::string didYouMean(std::vector<std::string> const& names);

/// "; did you mean getSum?" with the known names closest to `name`, at most three; empty when none is close.
std::string didYouMean(std::string_view name, std::vector<std::string> const& known);

} // namespace velmara::console
