#include "orbis/factory/impl/validateSelfPointer.hpp"

#include "orbis/factory/errorIdentities.hpp"
#include "orbis/factory/impl/Invoker.hpp"

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
