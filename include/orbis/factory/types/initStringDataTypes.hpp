#pragma once

#include "orbis/factory/base/export.hpp"

namespace orbis::factory::detail {

/// Registers the data types "OrbisFactoryString scalar" and "OrbisFactoryString vector" in the current virtual machine,
/// unless they are, for the rest of its lifetime. Publishing a class or functions does so; code that creates
/// descriptors by hand must call it first. Throws the host's errors, and then has registered nothing.
ORBIS_FACTORY_API void initStringDataTypes();

} // namespace orbis::factory::detail
