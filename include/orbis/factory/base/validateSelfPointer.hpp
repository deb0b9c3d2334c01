#pragma once

#include "orbis/factory/base/export.hpp"

namespace orbis::factory::impl {

class Invoker;

/// Throws "orbis_factory:orbis_factory:null_self" when `self` is null.
ORBIS_FACTORY_API void validateSelfPointer(void const* self);

/// The same, but only for a forced member: a free function that takes the object as its first argument.
ORBIS_FACTORY_API void validateSelfPointer(void const* self, Invoker const& invoker);

} // namespace orbis::factory::impl
