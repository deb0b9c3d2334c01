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
    static unsigned int const SEALED = 0x1;                    ///< `Sealed()`
    static unsigned int const INIT_ALLOWED = 0x2;              ///< `InitAllowed()`
    static unsigned int const DEFAULT_ALLOWED = 0x4;           ///< `DefaultAllowed()`
    static unsigned int const RESET_ALLOWED = 0x8;             ///< `ResetAllowed()`
    static unsigned int const ABSTRACT = 0x10;                 ///< `Abstract()`
    static unsigned int const TRANSIENT = 0x20;                ///< `Transient()`
    static unsigned int const COPY_ALLOWED = 0x40;             ///< `CopyAllowed()`
    static unsigned int const LISTENER_GET_ALLOWED = 0x80;     ///< `ListenerGetAllowed()`
    static unsigned int const LISTENER_SET_ALLOWED = 0x100;    ///< `ListenerSetAllowed()`
    static unsigned int const INSPECT_ALLOWED = 0x200;         ///< `InspectAllowed()`
    static unsigned int const ABORT_SET = 0x400;               ///< `AbortSet()`
    static unsigned int const HIDDEN = 0x800;                  ///< `Hidden()`
    static unsigned int const STATIC = 0x1000;                 ///< `Static()`
    static unsigned int const DEPENDENT = 0x2000;              ///< `Dependent()`
    static unsigned int const GRANDFATHERED = 0x4000;          ///< `Grandfathered()`
    static unsigned int const CAN_CONTAIN_INTERFACES = 0x8000; ///< `CanContainInterfaces()`
    static unsigned int const DESTRUCTIBLE = 0x10000;          ///< `Destructible()`
    static unsigned int const NOACCESS_GET = 0x100000;         ///< `NoAccessGetter()`
    static unsigned int const _PROTECT_GET = 0x200000;         ///< `ProtectedGetter()`
    static unsigned int const _PRIVATE_GET = 0x400000;         ///< `PrivateGetter()`
    static unsigned int const NOACCESS_SET = 0x800000;         ///< `NoAccessSetter()`
    static unsigned int const _PROTECT_SET = 0x1000000;        ///< `ProtectedSetter()`
    static unsigned int const _PRIVATE_SET = 0x2000000;        ///< `PrivateSetter()`
    static unsigned int const FORCE_MEMBERSHIP = 0x4000000;    ///< `ForceMembership()`

    PropertyAttributes();
    PropertyAttributes(PropertyAttributes const&);
    PropertyAttributes& operator=(PropertyAttributes const&);
    PropertyAttributes& operator=(PropertyAttributes&&);

    static PropertyAttributes AbortSet();             ///< writing the value it has may be skipped
    static PropertyAttributes Abstract();             ///< without accessors: neither read nor written
    static PropertyAttributes CanContainInterfaces(); ///< the value may refer to host objects
    static PropertyAttributes CopyAllowed();          ///< copied with the object
    static PropertyAttributes DefaultAllowed();       ///< may have its default value
    static PropertyAttributes Dependent();            ///< computed from other properties
    static PropertyAttributes Destructible();         ///< destroyed with the object; not reported by descriptors
    static PropertyAttributes ForceMembership();      ///< of objects, whatever its accessors are
    static PropertyAttributes Grandfathered();        ///< kept for old scripts
    static PropertyAttributes Hidden();               ///< left out of lists
    static PropertyAttributes InitAllowed();          ///< may be set at construction
    static PropertyAttributes InspectAllowed();       ///< tools may read it
    static PropertyAttributes ListenerGetAllowed();   ///< reads may be watched
    static PropertyAttributes ListenerSetAllowed();   ///< writes may be watched
    static PropertyAttributes NoAccessGetter();       ///< nobody may read it
    static PropertyAttributes NoAccessSetter();       ///< nobody may write it
    static PropertyAttributes PrivateGetter();        ///< only the class may read it
    static PropertyAttributes PrivateSetter();        ///< only the class may write it
    static PropertyAttributes ProtectedGetter();      ///< only the class and its subclasses may read it
    static PropertyAttributes ProtectedSetter();      ///< only the class and its subclasses may write it
    static PropertyAttributes ResetAllowed();         ///< may be set to its default value again
    static PropertyAttributes Sealed();               ///< subclasses may not redefine it
    static PropertyAttributes Static();               ///< of the class, not of an object
    static PropertyAttributes Transient();            ///< not saved with the object

    /// Returns the attributes of both.
    PropertyAttributes operator+(PropertyAttributes const& other) const;
    PropertyAttributes operator|(PropertyAttributes const& other) const; ///< the same

    /// Returns this set without the attributes of `other`.
    PropertyAttributes operator-(PropertyAttributes const& other) const;
    PropertyAttributes& operator+=(PropertyAttributes const& other); ///< adds those of `other`
    PropertyAttributes& operator|=(PropertyAttributes const& other); ///< adds those of `other`
    PropertyAttributes& operator-=(PropertyAttributes const& other); ///< removes those of `other`

    bool isVisible() const;            ///< false with `Hidden()`
    bool isAbortSet() const;           ///< true with `AbortSet()`
    bool isAbstract() const;           ///< true with `Abstract()`
    bool isCopyAllowed() const;        ///< true with `CopyAllowed()`
    bool isDefaultAllowed() const;     ///< true with `DefaultAllowed()`
    bool isDependent() const;          ///< true with `Dependent()`
    bool isDestructible() const;       ///< true with `Destructible()`
    bool isGrandfathered() const;      ///< true with `Grandfathered()`
    bool isInitAllowed() const;        ///< true with `InitAllowed()`
    bool isInspectAllowed() const;     ///< true with `InspectAllowed()`
    bool isListenerGetAllowed() const; ///< true with `ListenerGetAllowed()`
    bool isListenerSetAllowed() const; ///< true with `ListenerSetAllowed()`
    bool isResetAllowed() const;       ///< true with `ResetAllowed()`
    bool isSealed() const;             ///< true with `Sealed()`
    bool isStatic() const;             ///< true with `Static()`
    bool isTransient() const;          ///< true with `Transient()`
    bool canContainInterfaces();       ///< true with `CanContainInterfaces()`
    bool forceMemberProperty() const;  ///< true with `ForceMembership()`

    /// If several access attributes of one side are set, protected takes precedence over private, and private over no
    /// access.
    MemberAccess getMemberGetAccess() const;
    MemberAccess getMemberSetAccess() const; ///< likewise

private:
    friend class MemberText<PropertyAttributes>;

    explicit PropertyAttributes(int bits);

    int bits_;
};

} // namespace orbis::factory
