#pragma once

#include "orbis/COSInterface.hpp"
#include "orbis/COSValue.hpp"

namespace orbis::factory::impl {

/// Takes back a value that a getter gave for an object.
using ReleaseRoutine = void (*)(COSInterface* object, COSValue value);

} // namespace orbis::factory::impl
