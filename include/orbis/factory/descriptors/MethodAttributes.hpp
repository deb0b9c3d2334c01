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
    static unsigned int const UNLOCKED = 0x1;    ///< `Unlocked()`
    static unsigned int const HIDDEN = 0x2;      ///< `Hidden()`
    static unsigned int const SEALED = 0x4;      ///< `Sealed()`
    static unsigned int const STATIC = 0x8;      ///< `Static()`
    static unsigned int const ABSTRACT = 0x10;   ///< `Abstract()`
    static unsigned int const NODESTRUCT = 0x20; ///< `Indestructable()`
    static unsigned int const NOACCESS = 0x40;   ///< `NoAccess()`
    static unsigned int const _PROTECT = 0x80;   ///< `Protected()`
    static unsigned int const _PRIVATE = 0x100;  ///< `Private()`
    static unsigned int const OVERRIDE = 0x200;  ///< `OverridesAll()`
    static unsigned int const FORCE = 0x1000;    ///< `ForceMembership()`

    MethodAttributes();
    MethodAttributes(MethodAttributes const&);
    MethodAttributes& operator=(MethodAttributes const&);
    virtual ~MethodAttributes();

    static MethodAttributes Abstract();        ///< without an implementation
    static MethodAttributes ForceMembership(); ///< a free function that is called with the object first
    static MethodAttributes Hidden();          ///< left out of lists
    static MethodAttributes Indestructable();  ///< see `isDestructible`
    static MethodAttributes NoAccess();        ///< nobody may call it
    static MethodAttributes OverridesAll();    ///< hides all inherited methods of its name
    static MethodAttributes Private();         ///< only the class may call it
    static MethodAttributes Protected();       ///< only the class and its subclasses may call it
    static MethodAttributes Sealed();          ///< subclasses may not redefine it
    static MethodAttributes Static();          ///< called without an object
    static MethodAttributes Unlocked();        ///< see `isLocked`

    /// Returns the attributes of both.
    MethodAttributes operator+(MethodAttributes const& other) const;
    MethodAttributes operator|(MethodAttributes const& other) const; ///< the same

    /// Returns this set without the attributes of `other`.
    MethodAttributes operator-(MethodAttributes const& other) const;
    MethodAttributes& operator+=(MethodAttributes const& other); ///< adds those of `other`
    MethodAttributes& operator|=(MethodAttributes const& other); ///< adds those of `other`
    MethodAttributes& operator-=(MethodAttributes const& other); ///< removes those of `other`

    virtual bool isLocked() const;                        ///< false with `Unlocked()`
    virtual bool doesMethodOverrideAllSignatures() const; ///< true with `OverridesAll()`
    bool isVisible() const;                               ///< false with `Hidden()`
    bool isSealed() const;                                ///< true with `Sealed()`
    bool isStatic() const;                                ///< true with `Static()`
    bool isAbstract() const;                              ///< true with `Abstract()`

    /// True exactly when `Indestructable()` is set, despite the names: the host expects the stored flag.
    bool isDestructible() const;
    bool forceMemberMethod() const; ///< true with `ForceMembership()`

    /// If several access attributes are set, protected takes precedence over private, and private over no access.
    MemberAccess getMemberAccess() const;

private:
    friend class MemberText<MethodAttributes>;

    explicit MethodAttributes(unsigned int bits);

    unsigned int bits_;
};

} // namespace orbis::factory
