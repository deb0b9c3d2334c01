#pragma once

#include <string>
#include <typeinfo>

namespace orbis::factory {

/// Returns the name of a type as it is written in C++.
std::string cppName(std::type_info const& type);

} // namespace orbis::factory
