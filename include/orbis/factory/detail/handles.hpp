#pragma once

#include "orbis/factory/export.hpp"

#include "orbis/COSInterface.hpp"

/// The handles that hold host objects of the current virtual machine. When the binding goes first the registry gives
/// the handle's reference back. It knows handles by their address: one that was left behind takes nothing from others,
/// when its object's address is a new object's, and does not look at its object, which may have ended.
namespace orbis::factory::detail {

/// To be told before a handle that holds nothing here takes its reference. Throws `std::bad_alloc`, and the host's
/// error where no virtual machine is current.
ORBIS_FACTORY_API void enterHandle(COSInterface* host, void const* handle);

/// The host object that the handle holds; null when the registry gave the reference back already, and when no virtual
/// machine is current.
ORBIS_FACTORY_API COSInterface* heldBy(void const* handle) noexcept;

/// To be told before the reference is given back.
ORBIS_FACTORY_API void leaveHandle(void const* handle) noexcept;

} // namespace orbis::factory::detail
