#pragma once

#include "orbis/factory/Module.hpp"

#include <functional>
#include <string>

namespace orbis::factory {

/// Publishes a package that `fill` fills, as `registerOrbisPackage` does; for programs that publish classes themselves.
ORBIS_FACTORY_API COSPackage* registerModule(std::string const& fullName, std::function<void(Module&)> fill);

} // namespace orbis::factory
