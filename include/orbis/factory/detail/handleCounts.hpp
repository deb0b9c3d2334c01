#pragma once

#include "orbis/factory/export.hpp"

#include "orbis/COSInterface.hpp"

/// How many references handles hold on the host objects of the current virtual machine. A handle finds its host object
/// through the binding, so when that goes first the registry gives these references back.
namespace orbis::factory::detail {

/// To be told before the reference is taken; throws `std::bad_alloc` and the host's error where no machine is current.
ORBIS_FACTORY_API void countHandle(COSInterface* host);

/// To be asked before the reference is given back: false when the registry did that already.
ORBIS_FACTORY_API bool uncountHandle(COSInterface* host);

/// False when no virtual machine is current.
ORBIS_FACTORY_API bool canLookUpBindings();

} // namespace orbis::factory::detail
