#pragma once

#include "orbis/COSInterface.hpp"
#include "orbis/COSNameID.hpp"
#include "orbis_host_export.hpp"

namespace orbis::host_extensions {

/// Optional second base of a class info, which tells listings of live objects who owns the native objects.
class ORBIS_HOST_API NativeOwner {
public:
    virtual ~NativeOwner();

    /// Returns who destroys the native objects: "host" if they are destroyed with their host objects, "native" for
    /// native code, "shared" if their last owner, on either side, destroys them. Valid as long as the class info.
    virtual char const* nativeOwner() const = 0;

    /// Deletes `native`, which was passed to the host but got no host object, if it would be deleted with one. Does
    /// nothing unless overridden.
    virtual void discardNative(void* native) noexcept;
};

/// Returns the class info of a published class as a `NativeOwner`; null when the class is not published or its class
/// info is none.
ORBIS_HOST_API NativeOwner* nativeOwnerOf(COSNameID const& className);

/// The same for the class of an object.
ORBIS_HOST_API NativeOwner* nativeOwnerOf(COSInterface const* object);

} // namespace orbis::host_extensions
