#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSInterface.hpp"

/// The references that handles hold on host objects of the current virtual machine. Each is held for one binding, and
/// released when that binding is removed. Handles are identified by address, so a stale one cannot release the
/// reference of a new handle at the same address; the target is never dereferenced, because it may be destroyed.
namespace orbis::factory::detail {

/// Records that `handle`, which holds nothing, refers to `target`, which is bound to `host` as `bound`. Call it before
/// adding the reference to `host`. Throws `std::bad_alloc`, and the host's error if no virtual machine is current.
ORBIS_FACTORY_API void enterHandle(COSInterface* host, void const* bound, void const* target, void const* handle);

/// Returns the host object that the handle at this address holds, possibly for another target; null when it holds none
/// or no virtual machine is current.
ORBIS_FACTORY_API COSInterface* heldBy(void const* handle) noexcept;

/// Returns whether the handle holds the host object to which `target` is bound.
ORBIS_FACTORY_API bool isHeldBy(void const* handle, void const* target) noexcept;

/// Releases the handle's reference. This may destroy objects.
ORBIS_FACTORY_API void releaseForHandle(void const* handle) noexcept;

/// Defers the release until the current call from the host has returned or the next one begins: the handle's owner may
/// be in its destructor, and releasing now could destroy the owner's host object.
ORBIS_FACTORY_API void releaseForHandleLater(void const* handle) noexcept;

} // namespace orbis::factory::detail
