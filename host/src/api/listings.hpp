#pragma once

#include "velmara/Listing.hpp"

#include <string_view>

namespace velmara {

class Machine;

/// What is published, in records of texts. Each throws when there is nothing of the name.
NameKind lookUp(Machine& machine, std::string_view fullName);
PackageRecord describePackage(Machine& machine, std::string_view fullName);
ClassRecord describeClass(Machine& machine, std::string_view fullName);
MethodRecord describeFunction(Machine& machine, std::string_view fullName);

} // namespace velmara
