#pragma once

#include "orbis/COSPackageInfo.hpp"

namespace orbis::factory {

/// The package "orbis_factory". Its source is the one list of everything published in it.
class RootPackage final : public COSPackageInfo {
public:
    char const* getName() const override;
    char const* getDescription() const override;
    void initializePackage(COSPackage* package) override;
};

} // namespace orbis::factory
