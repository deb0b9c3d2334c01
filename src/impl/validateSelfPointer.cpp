#include "orbis/factory/impl/validateSelfPointer.hpp"

#include "orbis/factory/errorIdentities.hpp"
#include "orbis/factory/impl/Invoker.hpp"

#include "libkwfl/Exception.hpp"

namespace orbis::factory::impl {

void validateSelfPointer(void const* self)
{
    using orbis_factory::orbis_factory::null_self;
    if (!self)
        throw foundation::core::except::Exception<null_self, std::exception, void>(null_self());
}

void validateSelfPointer(void const* self, Invoker const& invoker)
{
    if (invoker.forcedMember)
        validateSelfPointer(self);
}

} // namespace orbis::factory::impl
