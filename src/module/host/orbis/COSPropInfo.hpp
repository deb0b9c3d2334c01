#pragma once

#include "orbis_host_export.hpp"

#include "orbis/COSClient.hpp"
#include "orbis/COSDataTypePtr.hpp"
#include "orbis/COSInterface.hpp"
#include "orbis/COSValue.hpp"
#include "orbis/Enumeration.hpp"
#include "orbis/access.hpp"

namespace orbis {

/// Describes one property to the host, and reads and writes it. Made with `new`; whoever it is handed to owns it
/// and deletes it.
class ORBIS_HOST_API COSPropInfo {
public:
    COSPropInfo();
    COSPropInfo(COSPropInfo const&);
    COSPropInfo& operator=(COSPropInfo const&);
    virtual ~COSPropInfo();

    /// Texts are valid as long as the descriptor. What the flags mean stands at the attributes of the same names in
    /// `orbis::factory::PropertyAttributes`.
    virtual char const* getName() const = 0;
    virtual char const* getDescription() const = 0;            ///< a text for users
    virtual char const* getDetailedDescription() const = 0;    ///< a longer one, or the same
    virtual COSValue getDefaultValue() const = 0;              ///< empty when there is none; stays the descriptor's
    virtual COSDataTypePtr getDataType() const = 0;            ///< empty when there is no such type
    virtual MemberAccess getMemberGetAccess() const = 0;       ///< who may read it
    virtual ExtendedMemberAccess getExtendedGetAccess() const; ///< None
    virtual MemberAccess getMemberSetAccess() const = 0;       ///< who may write it
    virtual ExtendedMemberAccess getExtendedSetAccess() const; ///< None
    virtual bool isSealed() const = 0;                         ///< subclasses may not redefine it
    virtual bool hasInternalDefault() const;                   ///< false
    virtual bool isInitAllowed() const = 0;                    ///< may be set at construction
    virtual bool isDefaultAllowed() const = 0;                 ///< may have its default value
    virtual bool isResetAllowed() const = 0;                   ///< may be set to its default value again
    virtual bool isAbstract() const = 0;                       ///< neither read nor written
    virtual bool isTransient() const = 0;                      ///< not saved with the object
    virtual bool isCopyAllowed() const = 0;                    ///< copied with the object
    virtual bool isWarnOnCopyError() const;                    ///< true
    virtual bool isListenerGetAllowed() const = 0;             ///< reads may be watched
    virtual bool isListenerSetAllowed() const = 0;             ///< writes may be watched
    virtual bool isInspectAllowed() const = 0;                 ///< tools may read it
    virtual bool isAbortSet() const = 0;                       ///< writing the value it has may be skipped
    virtual bool isVisible() const = 0;                        ///< lists show it
    virtual bool isNeverAmbiguous() const;                     ///< false
    virtual double getPartialMatchPriority() const;            ///< 0
    virtual bool isStatic() const = 0;                         ///< of the class, not of an object
    virtual bool isDependent() const = 0;                      ///< computed from other properties
    virtual bool isGrandfathered() const = 0;                  ///< kept for old scripts
    virtual bool isWeakReference() const;                      ///< false

    /// Reads the property of `object` (null for a static one). The value is given back with `releaseValue`, its
    /// array, if it holds one, by the caller afterwards.
    virtual COSValue getValue(COSInterface* object) const = 0;

    /// Writes the property. `value` stays the caller's.
    virtual void setValue(COSInterface* object, COSValue value) const = 0;

    /// Takes a value of `getValue` back, while its array, if it holds one, is still there.
    virtual void releaseValue(COSInterface* object, COSValue value) const = 0;

    virtual bool canContainInterfaces() const = 0; ///< the value may refer to host objects
    virtual bool isDestructible() const;           ///< false

    /// The host objects that the current value refers to.
    virtual Enumeration<COSInterface*> getInterfaces(COSClient const* client, COSInterface* object) const; ///< none
    virtual Enumeration<hvArray_tag*> getVXArrays(COSClient const* client, COSInterface* object) const;    ///< none
};

} // namespace orbis
