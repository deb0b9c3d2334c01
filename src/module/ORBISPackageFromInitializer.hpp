#pragma once

#include "orbis/COSPackageInfo.hpp"

#include <functional>
#include <string>

namespace orbis::factory {

/// A package info made of a name and a function that populates the package.
class ORBISPackageFromInitializer final : public COSPackageInfo {
public:
    /// `name` is the last component of the package's dotted name; `initializer` may be empty.
    ORBISPackageFromInitializer(std::string name, std::function<void(COSPackage*)> initializer);

    char const* getName() const override;
    void initializePackage(COSPackage* package) override;

private:
    std::string name_;
    std::function<void(COSPackage*)> initializer_;
};

} // namespace orbis::factory
