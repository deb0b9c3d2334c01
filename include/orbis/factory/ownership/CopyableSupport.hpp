#pragma once

#include "orbis/factory/base/export.hpp"

/// The unconstructed set: native objects of the current virtual machine that have been created but not yet bound or, in
/// value classes, not yet given their value. Code that copies or assigns objects can query it. Null is treated like any
/// other address. Threading: on the thread of the virtual machine.
namespace orbis::factory::CopyableSupport {

/// Adds an address, unless the set has it. Throws `std::bad_alloc`, and the host's error when no virtual machine is
/// current.
ORBIS_FACTORY_API void addToUnconstructedSet(void const* object);
ORBIS_FACTORY_API bool isInUnconstructedSet(void const* object); ///< throws likewise

/// Does nothing if the address is not in the set.
ORBIS_FACTORY_API void removeFromUnconstructedSet(void const* object);

} // namespace orbis::factory::CopyableSupport
