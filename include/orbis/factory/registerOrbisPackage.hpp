#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSPackage.hpp"

#include <functional>
#include <string>

namespace orbis::factory {

/// Publishes a package under its full dotted name; missing parents are made as empty packages. `initializer` adds
/// what the package holds: at once when the package exists already (an empty one then throws
/// `std::bad_function_call`), else when the host first asks the new package.
/// Returns the package, which is the host's; null for an empty name, which registers nothing.
ORBIS_FACTORY_API COSPackage* registerOrbisPackage(std::string const& fullName,
                                                   std::function<void(COSPackage*)> initializer);

} // namespace orbis::factory
