#pragma once

#include "orbis_host_export.hpp"

#include "orbis/COSNameID.hpp"

namespace orbis {

/// A host object: an instance of a host class. Owned by the host, which ends it with its last reference.
/// Threading: only on the thread of its virtual machine.
class ORBIS_HOST_API COSInterface {
public:
    COSInterface(COSInterface const&) = delete;
    COSInterface& operator=(COSInterface const&) = delete;

    /// Records `object` (null allowed) as the native object behind this one for the class `className`, in place
    /// of the instance data recorded before.
    virtual void setNativeObject(COSNameID const& className, void* object) = 0;

    /// The native object recorded for `className`, or null. For a superclass whose class info made none and for which
    /// none was recorded, the one recorded for the object's own class stands.
    virtual void* getNativeObject(COSNameID const& className) const = 0;

    /// `setValid(false)`: the native object is gone. The host forgets all native objects of this one and refuses
    /// each later use in a script.
    virtual void setValid(bool valid) = 0;

    /// Raise and lower the external reference count. The last reference to go ends the object.
    virtual void addReference() = 0;
    virtual void removeReference() = 0; ///< may end this object

    /// References by handles held outside the host, and by the host's own arrays.
    virtual int getExternalReferenceCount() const = 0;
    virtual int getInternalReferenceCount() const = 0; ///< by arrays

protected:
    COSInterface() = default;
    ~COSInterface() = default;
};

} // namespace orbis
