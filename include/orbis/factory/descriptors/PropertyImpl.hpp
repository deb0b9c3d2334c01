#pragma once

#include "orbis/factory/descriptors/Getter.hpp"
#include "orbis/factory/descriptors/PropertyImplBase.hpp"
#include "orbis/factory/descriptors/Setter.hpp"

namespace orbis::factory::impl {

/// The descriptor of a property: reads through its getter and writes through its setter. It owns neither: they must
/// outlive it, and copies share them. A missing side reports no access, and using it throws
/// "orbis_factory:orbis_factory:null_fcn_ptr".
class ORBIS_FACTORY_API PropertyImpl : public PropertyImplBase {
public:
    /// Takes no ownership; null for a missing side.
    PropertyImpl(String const& name, Getter* getter, Setter* setter, PropertyAttributes attributes);

    /// A property that is only read.
    PropertyImpl(String const& name, Getter* getter, PropertyAttributes attributes);

    /// A property that is only written.
    PropertyImpl(String const& name, Setter* setter, PropertyAttributes attributes);
    PropertyImpl(PropertyImpl const&);
    PropertyImpl(PropertyImpl&&);
    PropertyImpl& operator=(PropertyImpl const&);
    PropertyImpl& operator=(PropertyImpl&&);
    ~PropertyImpl() override;

    /// The getter's data type, else the setter's.
    COSDataTypePtr getDataType() const override;
    MemberAccess getMemberGetAccess() const override;
    MemberAccess getMemberSetAccess() const override;

    /// True for a property with only one side, whatever its attributes are.
    bool isTransient() const override;
    COSValue getValue(COSInterface* object) const override;
    void setValue(COSInterface* object, COSValue value) const override;
    void releaseValue(COSInterface* object, COSValue value) const override;

    /// Conservatively true if there is no getter to ask.
    bool canContainInterfaces() const override;
    Enumeration<COSInterface*> getInterfaces(COSClient const* client, COSInterface* object) const override;

    /// Always empty.
    Enumeration<hvArray_tag*> getVXArrays(COSClient const* client, COSInterface* object) const override;

private:
    Getter* getter_;
    Setter* setter_;
};

} // namespace orbis::factory::impl
