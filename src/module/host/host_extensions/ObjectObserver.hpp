#pragma once

#include "orbis/COSInterface.hpp"

namespace orbis::host_extensions {

/// Is notified when host objects stop representing native objects; for code that keeps data about them.
class ORBIS_HOST_API ObjectObserver {
public:
    /// `host` no longer records `native`: it becomes invalid or, with `isDestroyed`, is being destroyed without its
    /// class info having removed a binding of `native`. Called on the thread of the virtual machine, which is current.
    /// Must not run foreign code.
    virtual void nativeForgotten(COSInterface* host, void const* native, bool isDestroyed) noexcept = 0;

    /// `host` has become invalid, or has released its native objects in order to be destroyed. May run foreign code.
    virtual void objectGone(COSInterface* host) noexcept = 0;

    /// The outermost call into the virtual machine begins or returns, so no destructor called by native code is on the
    /// stack. Called once if `requestCallBoundary` was called since the last time.
    virtual void callBoundary() noexcept = 0;

protected:
    ObjectObserver() = default;
    ~ObjectObserver() = default;
};

/// Makes `observer` (null for none) the observer of the current virtual machine's objects, replacing the previous one.
/// The caller keeps ownership, and removes it before destroying it. Does nothing if no virtual machine is current.
ORBIS_HOST_API void observeObjects(ObjectObserver* observer) noexcept;

/// Requests one `callBoundary` of the current virtual machine's observer. Does nothing if none is current.
ORBIS_HOST_API void requestCallBoundary() noexcept;

} // namespace orbis::host_extensions
