#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/access.hpp"

namespace orbis::factory {

template <class Attributes>
class MemberText;

/// The attributes of a method or constructor. Combine the named sets with `+` or `|`, and remove with `-`. By default a
/// member is public, visible and locked, and all other attributes are off.
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

    /// Returns this set without the attributes of `other`.
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

    /// True exactly when `Indestructable()` is set, despite the names: the host expects the stored flag.
    bool isDestructible() const;
    bool forceMemberMethod() const;

    /// If several access attributes are set, protected takes precedence over private, and private over no access.
    MemberAccess getMemberAccess() const;

private:
    friend class MemberText<MethodAttributes>;

    explicit MethodAttributes(unsigned int bits);

    unsigned int bits_;
};

} // namespace orbis::factory
