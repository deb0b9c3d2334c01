#pragma once

#include "velmara/Hvm.hpp"

#include <string>

namespace velmara::console {

/// "Enumerations:" with the enumerators of each enumeration that members of the class need; of one of its members,
/// when that is named. Empty for none.
std::string enumerationsText(Hvm& hvm, ClassRecord const& cls, std::string_view member = {});

/// The same for the functions of a package.
std::string enumerationsText(Hvm& hvm, PackageRecord const& package, std::string_view function = {});

} // namespace velmara::console
