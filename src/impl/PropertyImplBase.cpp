#include "orbis/factory/descriptors/PropertyImplBase.hpp"

namespace orbis::factory::impl {

PropertyImplBase::PropertyImplBase(String const& name, String const& description, PropertyAttributes attributes)
    : name_(name),
      description_(description),
      attributes_(attributes)
{
}

PropertyImplBase::PropertyImplBase(PropertyImplBase const&) = default;

PropertyImplBase& PropertyImplBase::operator=(PropertyImplBase const&) = default;

PropertyImplBase::~PropertyImplBase() = default;

char const* PropertyImplBase::getName() const
{
    return name_;
}

char const* PropertyImplBase::getDescription() const
{
    return description_;
}

void PropertyImplBase::setDescription(String const& description)
{
    description_ = description;
}

char const* PropertyImplBase::getDetailedDescription() const
{
    return getDescription();
}

COSValue PropertyImplBase::getDefaultValue() const
{
    return {};
}

MemberAccess PropertyImplBase::getMemberGetAccess() const
{
    return attributes_.getMemberGetAccess();
}

MemberAccess PropertyImplBase::getMemberSetAccess() const
{
    return attributes_.getMemberSetAccess();
}

bool PropertyImplBase::isSealed() const
{
    return attributes_.isSealed();
}

bool PropertyImplBase::isInitAllowed() const
{
    return attributes_.isInitAllowed();
}

bool PropertyImplBase::isDefaultAllowed() const
{
    return attributes_.isDefaultAllowed();
}

bool PropertyImplBase::isResetAllowed() const
{
    return attributes_.isResetAllowed();
}

bool PropertyImplBase::isAbstract() const
{
    return attributes_.isAbstract();
}

bool PropertyImplBase::isTransient() const
{
    return attributes_.isTransient();
}

bool PropertyImplBase::isCopyAllowed() const
{
    return attributes_.isCopyAllowed();
}

bool PropertyImplBase::isListenerGetAllowed() const
{
    return attributes_.isListenerGetAllowed();
}

bool PropertyImplBase::isListenerSetAllowed() const
{
    return attributes_.isListenerSetAllowed();
}

bool PropertyImplBase::isInspectAllowed() const
{
    return attributes_.isInspectAllowed();
}

bool PropertyImplBase::isAbortSet() const
{
    return attributes_.isAbortSet();
}

bool PropertyImplBase::isVisible() const
{
    return attributes_.isVisible();
}

bool PropertyImplBase::isStatic() const
{
    return attributes_.isStatic();
}

bool PropertyImplBase::isDependent() const
{
    return attributes_.isDependent();
}

bool PropertyImplBase::isGrandfathered() const
{
    return attributes_.isGrandfathered();
}

} // namespace orbis::factory::impl
