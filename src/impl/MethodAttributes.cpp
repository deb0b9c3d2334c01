#include "orbis/factory/descriptors/MethodAttributes.hpp"

namespace orbis::factory {

unsigned int const MethodAttributes::UNLOCKED;
unsigned int const MethodAttributes::HIDDEN;
unsigned int const MethodAttributes::SEALED;
unsigned int const MethodAttributes::STATIC;
unsigned int const MethodAttributes::ABSTRACT;
unsigned int const MethodAttributes::NODESTRUCT;
unsigned int const MethodAttributes::NOACCESS;
unsigned int const MethodAttributes::_PROTECT;
unsigned int const MethodAttributes::_PRIVATE;
unsigned int const MethodAttributes::OVERRIDE;
unsigned int const MethodAttributes::FORCE;

MethodAttributes::MethodAttributes() : bits_(0) {}

MethodAttributes::MethodAttributes(unsigned int bits) : bits_(bits) {}

MethodAttributes::MethodAttributes(MethodAttributes const&) = default;

MethodAttributes& MethodAttributes::operator=(MethodAttributes const&) = default;

MethodAttributes::~MethodAttributes() = default;

MethodAttributes MethodAttributes::Abstract()
{
    return MethodAttributes(ABSTRACT);
}

MethodAttributes MethodAttributes::ForceMembership()
{
    return MethodAttributes(FORCE);
}

MethodAttributes MethodAttributes::Hidden()
{
    return MethodAttributes(HIDDEN);
}

MethodAttributes MethodAttributes::Indestructable()
{
    return MethodAttributes(NODESTRUCT);
}

MethodAttributes MethodAttributes::NoAccess()
{
    return MethodAttributes(NOACCESS);
}

MethodAttributes MethodAttributes::OverridesAll()
{
    return MethodAttributes(OVERRIDE);
}

MethodAttributes MethodAttributes::Private()
{
    return MethodAttributes(_PRIVATE);
}

MethodAttributes MethodAttributes::Protected()
{
    return MethodAttributes(_PROTECT);
}

MethodAttributes MethodAttributes::Sealed()
{
    return MethodAttributes(SEALED);
}

MethodAttributes MethodAttributes::Static()
{
    return MethodAttributes(STATIC);
}

MethodAttributes MethodAttributes::Unlocked()
{
    return MethodAttributes(UNLOCKED);
}

MethodAttributes MethodAttributes::operator+(MethodAttributes const& other) const
{
    return MethodAttributes(bits_ | other.bits_);
}

MethodAttributes MethodAttributes::operator|(MethodAttributes const& other) const
{
    return *this + other;
}

MethodAttributes MethodAttributes::operator-(MethodAttributes const& other) const
{
    return MethodAttributes(bits_ & ~other.bits_);
}

MethodAttributes& MethodAttributes::operator+=(MethodAttributes const& other)
{
    bits_ |= other.bits_;
    return *this;
}

MethodAttributes& MethodAttributes::operator|=(MethodAttributes const& other)
{
    return *this += other;
}

MethodAttributes& MethodAttributes::operator-=(MethodAttributes const& other)
{
    bits_ &= ~other.bits_;
    return *this;
}

bool MethodAttributes::isLocked() const
{
    return !(bits_ & UNLOCKED);
}

bool MethodAttributes::doesMethodOverrideAllSignatures() const
{
    return (bits_ & OVERRIDE) != 0;
}

bool MethodAttributes::isVisible() const
{
    return !(bits_ & HIDDEN);
}

bool MethodAttributes::isSealed() const
{
    return (bits_ & SEALED) != 0;
}

bool MethodAttributes::isStatic() const
{
    return (bits_ & STATIC) != 0;
}

bool MethodAttributes::isAbstract() const
{
    return (bits_ & ABSTRACT) != 0;
}

bool MethodAttributes::isDestructible() const
{
    return (bits_ & NODESTRUCT) != 0;
}

bool MethodAttributes::forceMemberMethod() const
{
    return (bits_ & FORCE) != 0;
}

MemberAccess MethodAttributes::getMemberAccess() const
{
    if (bits_ & _PROTECT)
        return MemberAccess::Protected;
    if (bits_ & _PRIVATE)
        return MemberAccess::Private;
    return bits_ & NOACCESS ? MemberAccess::NoAccess : MemberAccess::Public;
}

} // namespace orbis::factory
