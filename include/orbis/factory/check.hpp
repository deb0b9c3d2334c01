#pragma once

#include "orbis/factory/base/export.hpp"

#include <string>

namespace orbis::factory {

/// For debugging: cross-checks the current virtual machine's binding table, keep-alive sets, handles and shares against
/// what its host objects record. Returns the first inconsistency as one sentence; an empty string when there is none or
/// when no virtual machine is current. A host object whose native object is bound to another host object is reported
/// only in a virtual machine that reports leaks: only that keeps the history that tells such a mistake from a
/// deliberate `release` or rebinding.
///
/// Releases first the references that handles have deferred.
///
/// Threading: on the thread of the virtual machine, while none of its objects is being created or destroyed.
ORBIS_FACTORY_API std::string check();

} // namespace orbis::factory
