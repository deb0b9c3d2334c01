#pragma once

#include "orbis/COSNameID.hpp"
#include "orbis_host_export.hpp"

namespace orbis::additions {

/// What a class info may derive from beside `COSClassInfo`, so that lists of live objects tell who owns what stands
/// behind them.
class ORBIS_HOST_API NativeOwner {
public:
    virtual ~NativeOwner();

    /// In one word, which lives as long as the class info: "host" for native objects that end with their host objects,
    /// "native" for those that native code ends, "shared" for those that go with their last owner, of both kinds.
    virtual char const* nativeOwner() const = 0;

    /// Deletes `native`, which was given to the host and for which no host object could be made, if it would be deleted
    /// with that. Does nothing unless overridden.
    virtual void discardNative(void* native) noexcept;
};

/// The owner of the native objects of a published class; null when the class is not published, or says nothing of them.
ORBIS_HOST_API NativeOwner* nativeOwnerOf(COSNameID const& className);

} // namespace orbis::additions
