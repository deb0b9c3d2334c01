#pragma once

#include "orbis/factory/ownership/Wrappable.hpp"

namespace orbis::factory::full {

/// Returns a shared object that the current virtual machine keeps alive for a host object but that is bound to none;
/// null if there is none of that kind.
Wrappable const* findOrphanedShareable();
Wrappable const* findOrphanedStdShareable();

} // namespace orbis::factory::full
