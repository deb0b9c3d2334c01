#pragma once

#include "orbis/factory/base/export.hpp"

namespace orbis::factory::detail {

/// Makes sure that the current virtual machine knows the data types "OrbisFactoryString scalar" and "OrbisFactoryString
/// vector", from now to its end. Publishing a class or functions does so; who describes them to the host by hand calls
/// it first. Throws the host's errors, and then has registered nothing.
ORBIS_FACTORY_API void initStringDataTypes();

} // namespace orbis::factory::detail
