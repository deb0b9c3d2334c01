#include "orbis/factory/base/validateSelfPointer.hpp"

#include "orbis/factory/base/errorIdentities.hpp"
#include "orbis/factory/descriptors/Invoker.hpp"

#include "marshal/throwError.hpp"

namespace orbis::factory::impl {

void validateSelfPointer(void const* self)
{
    if (!self)
        throwError(orbis_factory::orbis_factory::null_self());
}

void validateSelfPointer(void const* self, Invoker const& invoker)
{
    if (invoker.forcedMember)
        validateSelfPointer(self);
}

} // namespace orbis::factory::impl
