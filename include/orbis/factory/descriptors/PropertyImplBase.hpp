#pragma once

#include "orbis/factory/base/String.hpp"
#include "orbis/factory/base/export.hpp"
#include "orbis/factory/descriptors/PropertyAttributes.hpp"

#include "orbis/COSPropInfo.hpp"

/// Descriptors: the objects through which the host calls members. Descriptions make them; they can be written by hand.
namespace orbis::factory::impl {

/// Base of the descriptors of properties: serves the host's queries from a name, a description and attributes.
class ORBIS_FACTORY_API PropertyImplBase : public COSPropInfo {
public:
    /// Copies all three.
    PropertyImplBase(String const& name, String const& description, PropertyAttributes attributes);
    PropertyImplBase(PropertyImplBase const&);
    PropertyImplBase& operator=(PropertyImplBase const&);
    ~PropertyImplBase() override;

    char const* getName() const override;
    char const* getDescription() const override;

    /// Returns `getDescription()`, which a subclass may override.
    char const* getDetailedDescription() const override;

    /// Replaces the description, before the descriptor is passed to the host.
    void setDescription(String const& description);

    /// Always empty.
    COSValue getDefaultValue() const override;
    MemberAccess getMemberGetAccess() const override;
    MemberAccess getMemberSetAccess() const override;
    bool isSealed() const override;
    bool isInitAllowed() const override;
    bool isDefaultAllowed() const override;
    bool isResetAllowed() const override;
    bool isAbstract() const override;
    bool isTransient() const override;
    bool isCopyAllowed() const override;
    bool isListenerGetAllowed() const override;
    bool isListenerSetAllowed() const override;
    bool isInspectAllowed() const override;
    bool isAbortSet() const override;
    bool isVisible() const override;
    bool isStatic() const override;
    bool isDependent() const override;
    bool isGrandfathered() const override;

private:
    String name_;
    String description_;
    PropertyAttributes attributes_;
};

} // namespace orbis::factory::impl
