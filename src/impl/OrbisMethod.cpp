#include "orbis/factory/descriptors/OrbisMethod.hpp"

namespace orbis::factory {

OrbisMethod::OrbisMethod(String const& name, MethodAttributes attributes, String const& description)
    : name_(name),
      description_(description),
      attributes_(attributes)
{
}

OrbisMethod::OrbisMethod(char const* name, MethodAttributes attributes, char const* description)
    : OrbisMethod(String(name), attributes, String(description))
{
}

OrbisMethod::~OrbisMethod() = default;

char const* OrbisMethod::getName() const
{
    return name_;
}

char const* OrbisMethod::getDescription() const
{
    return description_;
}

MemberAccess OrbisMethod::getMemberAccess()
{
    return attributes_.getMemberAccess();
}

COSMethodSignature const* OrbisMethod::getMethodSignature() const
{
    return signature_;
}

bool OrbisMethod::isStatic() const
{
    return attributes_.isStatic();
}

bool OrbisMethod::isAbstract() const
{
    return attributes_.isAbstract();
}

bool OrbisMethod::isSealed() const
{
    return attributes_.isSealed();
}

bool OrbisMethod::isVisible() const
{
    return attributes_.isVisible();
}

bool OrbisMethod::isDestructible() const
{
    return attributes_.isDestructible();
}

bool OrbisMethod::isLocked() const
{
    return attributes_.isLocked();
}

bool OrbisMethod::doesMethodOverrideAllSignatures() const
{
    return attributes_.doesMethodOverrideAllSignatures();
}

COSMethodSignaturePtr& OrbisMethod::signature()
{
    return signature_;
}

} // namespace orbis::factory
