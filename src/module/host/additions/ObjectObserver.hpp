#pragma once

#include "orbis/COSInterface.hpp"

namespace orbis::additions {

/// Who keeps something for host objects learns here when they no longer stand for anything.
class ORBIS_HOST_API ObjectObserver {
public:
    /// `host` records `native` no more: it becomes invalid, or is being destroyed and its class info said of `native`
    /// that it was not bound. Called on the thread of the virtual machine, which is current. Runs no foreign code.
    virtual void nativeForgotten(COSInterface* host, void const* native, bool isDestroyed) noexcept = 0;

    /// `host` has become invalid, or has given up its native objects to be destroyed. Foreign code may run.
    virtual void objectGone(COSInterface* host) noexcept = 0;

    /// The outermost call into the virtual machine begins or returns, and `requestCallBoundary` was called since the
    /// last one: no destructor that native code has begun is on the stack.
    virtual void callBoundary() noexcept = 0;

protected:
    ObjectObserver() = default;
    ~ObjectObserver() = default;
};

/// Makes `observer` (null for none) the observer of the current virtual machine's objects, in place of the one before.
/// It stays the caller's, who takes it away before it is destroyed. Does nothing when no virtual machine is current.
ORBIS_HOST_API void observeObjects(ObjectObserver* observer) noexcept;

/// Asks for one `callBoundary` of the current virtual machine's observer. Does nothing when none is current.
ORBIS_HOST_API void requestCallBoundary() noexcept;

} // namespace orbis::additions
