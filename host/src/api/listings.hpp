#pragma once

#include "velmara/Listing.hpp"

#include <string_view>

namespace velmara {

class HvmState;

/// What is published, in records of texts. Each throws when there is nothing of the name.
NameKind lookUp(HvmState& machine, std::string_view fullName);
PackageRecord describePackage(HvmState& machine, std::string_view fullName);
ClassRecord describeClass(HvmState& machine, std::string_view fullName);
MethodRecord describeFunction(HvmState& machine, std::string_view fullName);

} // namespace velmara
