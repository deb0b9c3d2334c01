#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/access.hpp"

namespace orbis::factory {

template <class Attributes>
class MemberText;

/// The attributes of a property. Combine the named sets with `+` or `|`, and remove with `-`. By default a property is
/// visible and public for reading and writing, and all other attributes are off.
class ORBIS_FACTORY_API PropertyAttributes {
public:
    static unsigned int const SEALED = 0x1;
    static unsigned int const INIT_ALLOWED = 0x2;
    static unsigned int const DEFAULT_ALLOWED = 0x4;
    static unsigned int const RESET_ALLOWED = 0x8;
    static unsigned int const ABSTRACT = 0x10;
    static unsigned int const TRANSIENT = 0x20;
    static unsigned int const COPY_ALLOWED = 0x40;
    static unsigned int const LISTENER_GET_ALLOWED = 0x80;
    static unsigned int const LISTENER_SET_ALLOWED = 0x100;
    static unsigned int const INSPECT_ALLOWED = 0x200;
    static unsigned int const ABORT_SET = 0x400;
    static unsigned int const HIDDEN = 0x800;
    static unsigned int const STATIC = 0x1000;
    static unsigned int const DEPENDENT = 0x2000;
    static unsigned int const GRANDFATHERED = 0x4000;
    static unsigned int const CAN_CONTAIN_INTERFACES = 0x8000;
    static unsigned int const DESTRUCTIBLE = 0x10000;
    static unsigned int const NOACCESS_GET = 0x100000;
    static unsigned int const _PROTECT_GET = 0x200000;
    static unsigned int const _PRIVATE_GET = 0x400000;
    static unsigned int const NOACCESS_SET = 0x800000;
    static unsigned int const _PROTECT_SET = 0x1000000;
    static unsigned int const _PRIVATE_SET = 0x2000000;
    static unsigned int const FORCE_MEMBERSHIP = 0x4000000;

    PropertyAttributes();
    PropertyAttributes(PropertyAttributes const&);
    PropertyAttributes& operator=(PropertyAttributes const&);
    PropertyAttributes& operator=(PropertyAttributes&&);

    static PropertyAttributes AbortSet();
    static PropertyAttributes Abstract();
    static PropertyAttributes CanContainInterfaces();
    static PropertyAttributes CopyAllowed();
    static PropertyAttributes DefaultAllowed();
    static PropertyAttributes Dependent();
    static PropertyAttributes Destructible();
    static PropertyAttributes ForceMembership();
    static PropertyAttributes Grandfathered();
    static PropertyAttributes Hidden();
    static PropertyAttributes InitAllowed();
    static PropertyAttributes InspectAllowed();
    static PropertyAttributes ListenerGetAllowed();
    static PropertyAttributes ListenerSetAllowed();
    static PropertyAttributes NoAccessGetter();
    static PropertyAttributes NoAccessSetter();
    static PropertyAttributes PrivateGetter();
    static PropertyAttributes PrivateSetter();
    static PropertyAttributes ProtectedGetter();
    static PropertyAttributes ProtectedSetter();
    static PropertyAttributes ResetAllowed();
    static PropertyAttributes Sealed();
    static PropertyAttributes Static();
    static PropertyAttributes Transient();

    PropertyAttributes operator+(PropertyAttributes const& other) const;
    PropertyAttributes operator|(PropertyAttributes const& other) const;

    /// Returns this set without the attributes of `other`.
    PropertyAttributes operator-(PropertyAttributes const& other) const;
    PropertyAttributes& operator+=(PropertyAttributes const& other);
    PropertyAttributes& operator|=(PropertyAttributes const& other);
    PropertyAttributes& operator-=(PropertyAttributes const& other);

    bool isVisible() const;
    bool isAbortSet() const;
    bool isAbstract() const;
    bool isCopyAllowed() const;
    bool isDefaultAllowed() const;
    bool isDependent() const;
    bool isDestructible() const;
    bool isGrandfathered() const;
    bool isInitAllowed() const;
    bool isInspectAllowed() const;
    bool isListenerGetAllowed() const;
    bool isListenerSetAllowed() const;
    bool isResetAllowed() const;
    bool isSealed() const;
    bool isStatic() const;
    bool isTransient() const;
    bool canContainInterfaces();
    bool forceMemberProperty() const;

    /// If several access attributes of one side are set, protected takes precedence over private, and private over no
    /// access.
    MemberAccess getMemberGetAccess() const;
    MemberAccess getMemberSetAccess() const;

private:
    friend class MemberText<PropertyAttributes>;

    explicit PropertyAttributes(int bits);

    int bits_;
};

} // namespace orbis::factory
