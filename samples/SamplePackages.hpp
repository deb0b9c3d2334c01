#pragma once

#include "orbis/COSPackageInfo.hpp"

namespace orbis::factory::samples {

// Package infos written by hand. They are registered under their full names.

/// Holds C1, and registers the package inside it.
class P1PackageWrapper final : public COSPackageInfo {
public:
    char const* getName() const override { return "orbis_factory.P1"; }
    char const* getDescription() const override { return "A package inside the root package"; }
    void initializePackage(COSPackage* package) override;
};

/// Holds C2.
class P2PackageWrapper final : public COSPackageInfo {
public:
    char const* getName() const override { return "orbis_factory.P1.P2"; }
    char const* getDescription() const override { return "A package inside P1, which registers it"; }
    void initializePackage(COSPackage* package) override;
};

/// Holds C3.
class P3PackageWrapper final : public COSPackageInfo {
public:
    char const* getName() const override { return "orbis_factory.P3"; }
    char const* getDescription() const override { return "A package beside P1"; }
    void initializePackage(COSPackage* package) override;
};

} // namespace orbis::factory::samples
