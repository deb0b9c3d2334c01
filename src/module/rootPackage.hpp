#pragma once

#include <memory>

namespace orbis {
class COSPackageInfo;
}

namespace orbis::factory {

class RootPackage;

/// The info of the package "orbis_factory". The built-in package defines it, so that the module need not know what
/// is published.
std::unique_ptr<COSPackageInfo> makeRootPackage();

} // namespace orbis::factory
