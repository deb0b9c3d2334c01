#pragma once

#include "orbis/factory/base/export.hpp"

#include "host_extensions/NativeOwner.hpp"
#include "orbis/COSClassInfo.hpp"

#include <string>

namespace orbis::factory {

/// Base of the class infos: holds the class's full dotted name and its description.
class ORBIS_FACTORY_API OrbisFactoryClassInfo : public COSClassInfo, public host_extensions::NativeOwner {
public:
    /// Records in the current virtual machine, if there is one, that the class may be published: a native object of it
    /// that is passed as a pointer to a base makes the library ask the host for the class.
    OrbisFactoryClassInfo(std::string const& name, std::string const& description);
    ~OrbisFactoryClassInfo() override;

    char const* getName() const override;
    char const* getDescription() const override;

    /// Returns `getDescription()`, which a subclass may override.
    char const* getDetailedDescription() const override;
    bool slot10Flag() const override;

    /// Returns "native" unless overridden.
    char const* nativeOwner() const override;

private:
    std::string name_;
    std::string description_;
};

} // namespace orbis::factory
