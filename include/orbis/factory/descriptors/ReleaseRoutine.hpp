#pragma once

#include "orbis/COSInterface.hpp"
#include "orbis/COSValue.hpp"

namespace orbis::factory::impl {

/// Releases a value that a getter returned for an object.
using ReleaseRoutine = void (*)(COSInterface* object, COSValue value);

} // namespace orbis::factory::impl
