#pragma once

#include "orbis/COSPackageInfo.hpp"

#include <functional>
#include <string>

namespace orbis::factory {

/// A package that is described by a name and a function that populates it.
class ORBISPackageFromInitializer final : public COSPackageInfo {
public:
    /// `name` is the package's own part of its dotted name; `initializer` may be empty.
    ORBISPackageFromInitializer(std::string name, std::function<void(COSPackage*)> initializer);

    char const* getName() const override;
    void initializePackage(COSPackage* package) override;

private:
    std::string name_;
    std::function<void(COSPackage*)> initializer_;
};

} // namespace orbis::factory
