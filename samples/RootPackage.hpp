#pragma once

#include "orbis/COSPackageInfo.hpp"

namespace orbis::factory {

/// The package "orbis_factory": the one list of what is published in it.
class RootPackage final : public COSPackageInfo {
public:
    char const* getName() const override;
    char const* getDescription() const override;
    void initializePackage(COSPackage* package) override;
};

} // namespace orbis::factory
