#pragma once

#include "orbis_host_export.hpp"

#include "orbis/COSNameID.hpp"

namespace orbis {

class COSClassInfo;
class COSMethodInfo;
class COSPackageInfo;

/// A published package of the current virtual machine. Everything handed over is the host's from then on, also
/// when it refuses it by throwing.
class ORBIS_HOST_API COSPackage {
public:
    COSPackage(COSPackage const&) = delete;
    COSPackage& operator=(COSPackage const&) = delete;

    /// Registers a package under its full dotted name. It is placed in the tree by that name; missing parents are
    /// made as empty packages.
    static void addPackage(COSPackageInfo* info);

    /// The registered package of that dotted name, or null. Its parents are populated when they were not yet, the
    /// package itself is not.
    static COSPackage* getPackage(COSNameID const& name);

    /// Unregisters a package with everything in it; objects of its classes become invalid. Does nothing when there
    /// is none.
    static void removePackage(COSNameID const& name);

    /// The info's name is the sub-package's own, without dots.
    virtual void addSubPackage(COSPackageInfo* info) = 0;

    /// The info's name must be this package's full name, a dot and the class's own name.
    virtual void addClass(COSClassInfo* info) = 0;

    /// The host takes ownership in every case, also when it refuses the function by throwing.
    virtual void addFunction(COSMethodInfo* function) = 0;

protected:
    COSPackage() = default;
    ~COSPackage() = default;
};

} // namespace orbis
