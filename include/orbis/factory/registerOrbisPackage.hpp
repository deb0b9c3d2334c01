#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSPackage.hpp"

#include <functional>
#include <string>

namespace orbis::factory {

/// Publishes a package under its full dotted name and creates missing parents as empty packages. `initializer` adds the
/// package's contents. It runs immediately if the package exists (an empty one then throws `std::bad_function_call`),
/// else when the host first uses the new package. Returns the package, which the host owns. Returns null, and publishes
/// nothing, for an empty name.
ORBIS_FACTORY_API COSPackage* registerOrbisPackage(std::string const& fullName,
                                                   std::function<void(COSPackage*)> initializer);

} // namespace orbis::factory
