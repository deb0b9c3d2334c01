#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmara::console {

/// "; did you mean getSum?" with the known names closest to `name`, at most three; empty when none is close.
std::string didYouMean(std::string_view name, std::vector<std::string> const& known);

} // namespace velmara::console
