#pragma once

#include "orbis/factory/base/export.hpp"

#include "additions/NativeOwner.hpp"
#include "orbis/COSClassInfo.hpp"

#include <string>

namespace orbis::factory {

/// Base of the class infos: holds the class's full dotted name and its one-line description.
class ORBIS_FACTORY_API OrbisFactoryClassInfo : public COSClassInfo, public additions::NativeOwner {
public:
    /// Remembers for the current virtual machine, if there is one, that the class may be published: a pointer to a base
    /// of it is looked for there, too.
    OrbisFactoryClassInfo(std::string const& name, std::string const& description);
    ~OrbisFactoryClassInfo() override;

    char const* getName() const override;
    char const* getDescription() const override;

    /// What `getDescription` gives, also when a subclass overrides that.
    char const* getDetailedDescription() const override;
    bool slot10Flag() const override;

    /// "native", unless a subclass says otherwise.
    char const* nativeOwner() const override;

private:
    std::string name_;
    std::string description_;
};

} // namespace orbis::factory
