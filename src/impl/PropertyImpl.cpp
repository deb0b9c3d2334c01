#include "orbis/factory/descriptors/PropertyImpl.hpp"

#include "orbis/factory/base/errorIdentities.hpp"

#include "marshal/throwError.hpp"

namespace orbis::factory::impl {

namespace {

/// Returns a getter or setter that an access needs; throws if it is missing.
template <class Side>
Side const& required(Side const* side)
{
    if (!side)
        throwError(orbis_factory::orbis_factory::null_fcn_ptr());
    return *side;
}

} // namespace

PropertyImpl::PropertyImpl(String const& name, Getter* getter, Setter* setter, PropertyAttributes attributes)
    : PropertyImplBase(name, "", attributes),
      getter_(getter),
      setter_(setter)
{
}

PropertyImpl::PropertyImpl(String const& name, Getter* getter, PropertyAttributes attributes)
    : PropertyImpl(name, getter, nullptr, attributes)
{
}

PropertyImpl::PropertyImpl(String const& name, Setter* setter, PropertyAttributes attributes)
    : PropertyImpl(name, nullptr, setter, attributes)
{
}

PropertyImpl::PropertyImpl(PropertyImpl const&) = default;

PropertyImpl::PropertyImpl(PropertyImpl&&) = default;

PropertyImpl& PropertyImpl::operator=(PropertyImpl const&) = default;

PropertyImpl& PropertyImpl::operator=(PropertyImpl&&) = default;

PropertyImpl::~PropertyImpl() = default;

COSDataTypePtr PropertyImpl::getDataType() const
{
    char const* const given = getter_ ? getter_->dataTypeName() : nullptr;
    return given || !setter_ ? given : setter_->dataTypeName();
}

MemberAccess PropertyImpl::getMemberGetAccess() const
{
    return getter_ ? PropertyImplBase::getMemberGetAccess() : MemberAccess::NoAccess;
}

MemberAccess PropertyImpl::getMemberSetAccess() const
{
    return setter_ ? PropertyImplBase::getMemberSetAccess() : MemberAccess::NoAccess;
}

bool PropertyImpl::isTransient() const
{
    return !getter_ || !setter_ || PropertyImplBase::isTransient();
}

COSValue PropertyImpl::getValue(COSInterface* object) const
{
    return required(getter_).getValue(object);
}

void PropertyImpl::setValue(COSInterface* object, COSValue value) const
{
    required(setter_).setValue(object, value);
}

void PropertyImpl::releaseValue(COSInterface* object, COSValue value) const
{
    required(getter_).releaseValue(object, value);
}

bool PropertyImpl::canContainInterfaces() const
{
    return !getter_ || getter_->canContainInterfaces();
}

Enumeration<COSInterface*> PropertyImpl::getInterfaces(COSClient const*, COSInterface* object) const
{
    return required(getter_).getInterfaces(object);
}

Enumeration<hvArray_tag*> PropertyImpl::getVXArrays(COSClient const*, COSInterface*) const
{
    return {};
}

} // namespace orbis::factory::impl
