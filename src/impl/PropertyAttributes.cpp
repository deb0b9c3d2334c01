#include "orbis/factory/descriptors/PropertyAttributes.hpp"

namespace orbis::factory {

namespace {

MemberAccess access(bool isProtected, bool isPrivate, bool isClosed)
{
    if (isProtected)
        return MemberAccess::Protected;
    if (isPrivate)
        return MemberAccess::Private;
    return isClosed ? MemberAccess::NoAccess : MemberAccess::Public;
}

} // namespace

unsigned int const PropertyAttributes::SEALED;
unsigned int const PropertyAttributes::INIT_ALLOWED;
unsigned int const PropertyAttributes::DEFAULT_ALLOWED;
unsigned int const PropertyAttributes::RESET_ALLOWED;
unsigned int const PropertyAttributes::ABSTRACT;
unsigned int const PropertyAttributes::TRANSIENT;
unsigned int const PropertyAttributes::COPY_ALLOWED;
unsigned int const PropertyAttributes::LISTENER_GET_ALLOWED;
unsigned int const PropertyAttributes::LISTENER_SET_ALLOWED;
unsigned int const PropertyAttributes::INSPECT_ALLOWED;
unsigned int const PropertyAttributes::ABORT_SET;
unsigned int const PropertyAttributes::HIDDEN;
unsigned int const PropertyAttributes::STATIC;
unsigned int const PropertyAttributes::DEPENDENT;
unsigned int const PropertyAttributes::GRANDFATHERED;
unsigned int const PropertyAttributes::CAN_CONTAIN_INTERFACES;
unsigned int const PropertyAttributes::DESTRUCTIBLE;
unsigned int const PropertyAttributes::NOACCESS_GET;
unsigned int const PropertyAttributes::_PROTECT_GET;
unsigned int const PropertyAttributes::_PRIVATE_GET;
unsigned int const PropertyAttributes::NOACCESS_SET;
unsigned int const PropertyAttributes::_PROTECT_SET;
unsigned int const PropertyAttributes::_PRIVATE_SET;
unsigned int const PropertyAttributes::FORCE_MEMBERSHIP;

PropertyAttributes::PropertyAttributes() : bits_(0) {}

PropertyAttributes::PropertyAttributes(int bits) : bits_(bits) {}

PropertyAttributes::PropertyAttributes(PropertyAttributes const&) = default;

PropertyAttributes& PropertyAttributes::operator=(PropertyAttributes const&) = default;

PropertyAttributes& PropertyAttributes::operator=(PropertyAttributes&&) = default;

PropertyAttributes PropertyAttributes::AbortSet()
{
    return PropertyAttributes(ABORT_SET);
}

PropertyAttributes PropertyAttributes::Abstract()
{
    return PropertyAttributes(ABSTRACT);
}

PropertyAttributes PropertyAttributes::CanContainInterfaces()
{
    return PropertyAttributes(CAN_CONTAIN_INTERFACES);
}

PropertyAttributes PropertyAttributes::CopyAllowed()
{
    return PropertyAttributes(COPY_ALLOWED);
}

PropertyAttributes PropertyAttributes::DefaultAllowed()
{
    return PropertyAttributes(DEFAULT_ALLOWED);
}

PropertyAttributes PropertyAttributes::Dependent()
{
    return PropertyAttributes(DEPENDENT);
}

PropertyAttributes PropertyAttributes::Destructible()
{
    return PropertyAttributes(DESTRUCTIBLE);
}

PropertyAttributes PropertyAttributes::ForceMembership()
{
    return PropertyAttributes(FORCE_MEMBERSHIP);
}

PropertyAttributes PropertyAttributes::Grandfathered()
{
    return PropertyAttributes(GRANDFATHERED);
}

PropertyAttributes PropertyAttributes::Hidden()
{
    return PropertyAttributes(HIDDEN);
}

PropertyAttributes PropertyAttributes::InitAllowed()
{
    return PropertyAttributes(INIT_ALLOWED);
}

PropertyAttributes PropertyAttributes::InspectAllowed()
{
    return PropertyAttributes(INSPECT_ALLOWED);
}

PropertyAttributes PropertyAttributes::ListenerGetAllowed()
{
    return PropertyAttributes(LISTENER_GET_ALLOWED);
}

PropertyAttributes PropertyAttributes::ListenerSetAllowed()
{
    return PropertyAttributes(LISTENER_SET_ALLOWED);
}

PropertyAttributes PropertyAttributes::NoAccessGetter()
{
    return PropertyAttributes(NOACCESS_GET);
}

PropertyAttributes PropertyAttributes::NoAccessSetter()
{
    return PropertyAttributes(NOACCESS_SET);
}

PropertyAttributes PropertyAttributes::PrivateGetter()
{
    return PropertyAttributes(_PRIVATE_GET);
}

PropertyAttributes PropertyAttributes::PrivateSetter()
{
    return PropertyAttributes(_PRIVATE_SET);
}

PropertyAttributes PropertyAttributes::ProtectedGetter()
{
    return PropertyAttributes(_PROTECT_GET);
}

PropertyAttributes PropertyAttributes::ProtectedSetter()
{
    return PropertyAttributes(_PROTECT_SET);
}

PropertyAttributes PropertyAttributes::ResetAllowed()
{
    return PropertyAttributes(RESET_ALLOWED);
}

PropertyAttributes PropertyAttributes::Sealed()
{
    return PropertyAttributes(SEALED);
}

PropertyAttributes PropertyAttributes::Static()
{
    return PropertyAttributes(STATIC);
}

PropertyAttributes PropertyAttributes::Transient()
{
    return PropertyAttributes(TRANSIENT);
}

PropertyAttributes PropertyAttributes::operator+(PropertyAttributes const& other) const
{
    return PropertyAttributes(bits_ | other.bits_);
}

PropertyAttributes PropertyAttributes::operator|(PropertyAttributes const& other) const
{
    return *this + other;
}

PropertyAttributes PropertyAttributes::operator-(PropertyAttributes const& other) const
{
    return PropertyAttributes(bits_ & ~other.bits_);
}

PropertyAttributes& PropertyAttributes::operator+=(PropertyAttributes const& other)
{
    bits_ |= other.bits_;
    return *this;
}

PropertyAttributes& PropertyAttributes::operator|=(PropertyAttributes const& other)
{
    return *this += other;
}

PropertyAttributes& PropertyAttributes::operator-=(PropertyAttributes const& other)
{
    bits_ &= ~other.bits_;
    return *this;
}

bool PropertyAttributes::isVisible() const
{
    return !(bits_ & HIDDEN);
}

bool PropertyAttributes::isAbortSet() const
{
    return (bits_ & ABORT_SET) != 0;
}

bool PropertyAttributes::isAbstract() const
{
    return (bits_ & ABSTRACT) != 0;
}

bool PropertyAttributes::isCopyAllowed() const
{
    return (bits_ & COPY_ALLOWED) != 0;
}

bool PropertyAttributes::isDefaultAllowed() const
{
    return (bits_ & DEFAULT_ALLOWED) != 0;
}

bool PropertyAttributes::isDependent() const
{
    return (bits_ & DEPENDENT) != 0;
}

bool PropertyAttributes::isDestructible() const
{
    return (bits_ & DESTRUCTIBLE) != 0;
}

bool PropertyAttributes::isGrandfathered() const
{
    return (bits_ & GRANDFATHERED) != 0;
}

bool PropertyAttributes::isInitAllowed() const
{
    return (bits_ & INIT_ALLOWED) != 0;
}

bool PropertyAttributes::isInspectAllowed() const
{
    return (bits_ & INSPECT_ALLOWED) != 0;
}

bool PropertyAttributes::isListenerGetAllowed() const
{
    return (bits_ & LISTENER_GET_ALLOWED) != 0;
}

bool PropertyAttributes::isListenerSetAllowed() const
{
    return (bits_ & LISTENER_SET_ALLOWED) != 0;
}

bool PropertyAttributes::isResetAllowed() const
{
    return (bits_ & RESET_ALLOWED) != 0;
}

bool PropertyAttributes::isSealed() const
{
    return (bits_ & SEALED) != 0;
}

bool PropertyAttributes::isStatic() const
{
    return (bits_ & STATIC) != 0;
}

bool PropertyAttributes::isTransient() const
{
    return (bits_ & TRANSIENT) != 0;
}

// The interface declares it non-const.
bool PropertyAttributes::canContainInterfaces() // NOLINT(readability-make-member-function-const)
{
    return (bits_ & CAN_CONTAIN_INTERFACES) != 0;
}

bool PropertyAttributes::forceMemberProperty() const
{
    return (bits_ & FORCE_MEMBERSHIP) != 0;
}

MemberAccess PropertyAttributes::getMemberGetAccess() const
{
    return access(bits_ & _PROTECT_GET, bits_ & _PRIVATE_GET, bits_ & NOACCESS_GET);
}

MemberAccess PropertyAttributes::getMemberSetAccess() const
{
    return access(bits_ & _PROTECT_SET, bits_ & _PRIVATE_SET, bits_ & NOACCESS_SET);
}

} // namespace orbis::factory
