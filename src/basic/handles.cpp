#include "orbis/factory/detail/handles.hpp"

#include "orbis/factory/basic/HvmScoped.hpp"
#include "orbis/factory/basic/registry.hpp"

#include "libkwfoundation_usm/Detail.hpp"

namespace orbis::factory::detail {

namespace {

/// Null when nothing is bound, and when the virtual machine has begun to give up its storage.
basic::FooRegistry* activeTable()
{
    bool const isActive = foundation::usm::Detail<foundation::usm::scope::Hvm>::isRequiredContextActive();
    return isActive ? basic::HvmScoped<basic::FooRegistry>::find() : nullptr;
}

} // namespace

void enterHandle(COSInterface* host, void const* handle)
{
    basic::registry().handles.enter(host, handle);
}

COSInterface* heldBy(void const* handle) noexcept
{
    basic::FooRegistry const* const table = activeTable();
    return table ? table->handles.heldBy(handle) : nullptr;
}

void leaveHandle(void const* handle) noexcept
{
    if (basic::FooRegistry* const table = activeTable())
        table->handles.leave(handle);
}

} // namespace orbis::factory::detail
