#pragma once

#include "orbis/factory/base/export.hpp"

/// The native objects of the current virtual machine that are made but not yet bound. Code that copies or assigns
/// objects can ask whether an address is still in that state. A null address is one like any other.
/// Threading: on the thread of the virtual machine.
namespace orbis::factory::CopyableSupport {

ORBIS_FACTORY_API void addToUnconstructedSet(void const* object);
ORBIS_FACTORY_API bool isInUnconstructedSet(void const* object);

/// Does nothing when the address is not in the set.
ORBIS_FACTORY_API void removeFromUnconstructedSet(void const* object);

} // namespace orbis::factory::CopyableSupport
