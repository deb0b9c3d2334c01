#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSInterface.hpp"

/// The handles that hold host objects of the current virtual machine. A handle's reference is taken for one binding,
/// and the registry releases it when that goes first. Handles are known by their address, so that one that was left
/// behind takes nothing from a new one there, and the object that a handle refers to, which may be gone, is not looked
/// at.
namespace orbis::factory::detail {

/// To be called before a handle that holds nothing here takes its reference on `host`: it refers to `target`, which is
/// bound to `host` as `bound`. Throws `std::bad_alloc`, and the host's error where no virtual machine is current.
ORBIS_FACTORY_API void enterHandle(COSInterface* host, void const* bound, void const* target, void const* handle);

/// The host object that the handle at this address holds, maybe for another target; null when it holds none, and when
/// no virtual machine is current.
ORBIS_FACTORY_API COSInterface* heldBy(void const* handle) noexcept;

/// True while the handle holds the host object that `target` is bound to.
ORBIS_FACTORY_API bool isHeldBy(void const* handle, void const* target) noexcept;

/// Releases what the handle holds. Objects may end.
ORBIS_FACTORY_API void releaseForHandle(void const* handle) noexcept;

/// Likewise, but not before the call from the host that is running has returned, or the next one begins: the handle's
/// owner may be on its way out, and its own host object among those that end.
ORBIS_FACTORY_API void releaseForHandleLater(void const* handle) noexcept;

} // namespace orbis::factory::detail
