#pragma once

#include "orbis/factory/export.hpp"

#include "orbis/COSInterface.hpp"

/// The handles that hold host objects of the current virtual machine. A handle finds its host object through the
/// binding, so when that goes first the registry gives the handle's reference back. It knows handles by their address:
/// one that was left behind takes nothing from others, when its object's address is a new object's.
namespace orbis::factory::detail {

/// To be told before the reference is taken: false when the handle has it already, as one may that was emptied where
/// another virtual machine was current. Throws `std::bad_alloc`, and the host's error where no machine is current.
ORBIS_FACTORY_API bool enterHandle(COSInterface* host, void const* handle);

/// False when the registry gave the reference back already.
ORBIS_FACTORY_API bool isEntered(COSInterface* host, void const* handle);

/// To be told before the reference is given back. Null is allowed.
ORBIS_FACTORY_API void leaveHandle(COSInterface* host, void const* handle);

/// False when no virtual machine is current.
ORBIS_FACTORY_API bool canLookUpBindings();

} // namespace orbis::factory::detail
