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

    virtual char const* getName() const = 0;
    virtual char const* getDescription() const = 0;
    virtual char const* getDetailedDescription() const = 0;
    virtual COSValue getDefaultValue() const = 0; ///< empty when there is none; stays the descriptor's
    virtual COSDataTypePtr getDataType() const = 0;
    virtual MemberAccess getMemberGetAccess() const = 0;
    virtual ExtendedMemberAccess getExtendedGetAccess() const; ///< None
    virtual MemberAccess getMemberSetAccess() const = 0;
    virtual ExtendedMemberAccess getExtendedSetAccess() const; ///< None
    virtual bool isSealed() const = 0;
    virtual bool hasInternalDefault() const; ///< false
    virtual bool isInitAllowed() const = 0;
    virtual bool isDefaultAllowed() const = 0;
    virtual bool isResetAllowed() const = 0;
    virtual bool isAbstract() const = 0;
    virtual bool isTransient() const = 0;
    virtual bool isCopyAllowed() const = 0;
    virtual bool isWarnOnCopyError() const; ///< true
    virtual bool isListenerGetAllowed() const = 0;
    virtual bool isListenerSetAllowed() const = 0;
    virtual bool isInspectAllowed() const = 0;
    virtual bool isAbortSet() const = 0;
    virtual bool isVisible() const = 0;
    virtual bool isNeverAmbiguous() const;          ///< false
    virtual double getPartialMatchPriority() const; ///< 0
    virtual bool isStatic() const = 0;
    virtual bool isDependent() const = 0;
    virtual bool isGrandfathered() const = 0;
    virtual bool isWeakReference() const; ///< false

    /// Reads the property of `object` (null for a static one). The value is given back with `releaseValue`, its
    /// array, if it holds one, by the caller afterwards.
    virtual COSValue getValue(COSInterface* object) const = 0;

    /// Writes the property. `value` stays the caller's.
    virtual void setValue(COSInterface* object, COSValue value) const = 0;
    virtual void releaseValue(COSInterface* object, COSValue value) const = 0;

    virtual bool canContainInterfaces() const = 0;
    virtual bool isDestructible() const; ///< false

    /// The host objects that the current value refers to.
    virtual Enumeration<COSInterface*> getInterfaces(COSClient const* client, COSInterface* object) const; ///< none
    virtual Enumeration<hvArray_tag*> getVXArrays(COSClient const* client, COSInterface* object) const;    ///< none
};

} // namespace orbis
