#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/access.hpp"

namespace orbis::factory {

/// The flags of a method or constructor: built from the named sets, joined with `+` or `|`, trimmed with `-`. The
/// default is public, visible, locked, and none of the rest.
class ORBIS_FACTORY_API MethodAttributes {
public:
    static unsigned int const UNLOCKED = 0x1;
    static unsigned int const HIDDEN = 0x2;
    static unsigned int const SEALED = 0x4;
    static unsigned int const STATIC = 0x8;
    static unsigned int const ABSTRACT = 0x10;
    static unsigned int const NODESTRUCT = 0x20;
    static unsigned int const NOACCESS = 0x40;
    static unsigned int const _PROTECT = 0x80;
    static unsigned int const _PRIVATE = 0x100;
    static unsigned int const OVERRIDE = 0x200;
    static unsigned int const FORCE = 0x1000;

    MethodAttributes();
    MethodAttributes(MethodAttributes const&);
    MethodAttributes& operator=(MethodAttributes const&);
    virtual ~MethodAttributes();

    static MethodAttributes Abstract();
    static MethodAttributes ForceMembership();
    static MethodAttributes Hidden();
    static MethodAttributes Indestructable();
    static MethodAttributes NoAccess();
    static MethodAttributes OverridesAll();
    static MethodAttributes Private();
    static MethodAttributes Protected();
    static MethodAttributes Sealed();
    static MethodAttributes Static();
    static MethodAttributes Unlocked();

    MethodAttributes operator+(MethodAttributes const& other) const;
    MethodAttributes operator|(MethodAttributes const& other) const;

    /// Without the flags of `other`.
    MethodAttributes operator-(MethodAttributes const& other) const;
    MethodAttributes& operator+=(MethodAttributes const& other);
    MethodAttributes& operator|=(MethodAttributes const& other);
    MethodAttributes& operator-=(MethodAttributes const& other);

    virtual bool isLocked() const;
    virtual bool doesMethodOverrideAllSignatures() const;
    bool isVisible() const;
    bool isSealed() const;
    bool isStatic() const;
    bool isAbstract() const;

    /// True exactly for `Indestructable()`: the host takes the flag as it is stored.
    bool isDestructible() const;
    bool forceMemberMethod() const;

    /// Where several access flags are set, protected goes before private, and private before no access.
    MemberAccess getMemberAccess() const;

private:
    explicit MethodAttributes(unsigned int bits);

    unsigned int bits_;
};

} // namespace orbis::factory
