#pragma once

#include "orbis_host_export.hpp"

#include <cstddef>

namespace orbis {

class COSPackage;
class COSMethodSelector;

/// Describes one package to the host. Made with `new`; the host it is handed to owns it.
class ORBIS_HOST_API COSPackageInfo {
public:
    /// Storage of the host; throws its `bad_alloc`.
    static void* operator new(std::size_t size);
    static void operator delete(void* storage); ///< null is allowed

    COSPackageInfo();
    COSPackageInfo(COSPackageInfo const&) = delete;
    COSPackageInfo& operator=(COSPackageInfo const&) = delete;
    virtual ~COSPackageInfo();

    /// The package's name: full and dotted for `COSPackage::addPackage`, its own part for `addSubPackage`.
    virtual char const* getName() const = 0;
    virtual char const* getDescription() const;             ///< ""
    virtual char const* getDetailedDescription() const;     ///< what `getDescription` gives
    virtual bool attemptToLoadSubPackage(char const* name); ///< false
    virtual bool attemptToLoadClass(char const* name);      ///< false
    virtual bool attemptToLoadFunction(char const* name);   ///< false
    virtual bool attemptToLoadType(char const* name);       ///< false
    virtual COSMethodSelector* getMethodSelector() const;   ///< null

    /// Adds everything the package holds. Called once, when the package is first asked for what it holds; when
    /// it throws, what was added is dropped and the next request calls it again.
    virtual void initializePackage(COSPackage* package) = 0;

    virtual bool isDestructible() const;         ///< true
    virtual bool isLocked() const;               ///< true
    virtual char16_t const* getH1Line() const;   ///< null
    virtual char16_t const* getHelpText() const; ///< null
};

} // namespace orbis
