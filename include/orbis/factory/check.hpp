#pragma once

#include "orbis/factory/base/export.hpp"

#include <string>

namespace orbis::factory {

/// For debugging: compares all that the current virtual machine knows of native objects, the binding table, the sets
/// that keep shared objects alive, and what the host objects themselves record, both ways. Gives the first
/// inconsistency as one sentence, and an empty text when there is none, or no virtual machine is current. Host objects
/// that stand for a native object that is bound to another one are found only in a virtual machine that reports leaks,
/// as only that remembers what was released or bound twice on purpose.
///
/// What handles left to be released later is released before.
///
/// Threading: on the thread of the virtual machine, while no object of it is being made or destroyed.
ORBIS_FACTORY_API std::string check();

} // namespace orbis::factory
