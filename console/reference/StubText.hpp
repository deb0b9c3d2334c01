#pragma once

#include "reference/StubTypes.hpp"

#include "velmara/Listing.hpp"

#include <string>

namespace velmara::console {

/// A class as a table of Lua with annotations for editors: what it has that no superclass of it has. Its superclasses
/// are known types.
std::string classStub(ClassRecord const& cls, StubTypes const& types);

/// A package as an empty table, and its functions.
std::string packageStub(PackageRecord const& package, StubTypes const& types);

} // namespace velmara::console
