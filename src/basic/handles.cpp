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
    basic::FooRegistry& table = basic::registry();
    COSInterface*& held = table.heldByHandles[handle];
    table.handles.emplace(host, handle);
    held = host;
}

COSInterface* heldBy(void const* handle) noexcept
{
    basic::FooRegistry const* const table = activeTable();
    if (!table)
        return nullptr;
    auto const found = table->heldByHandles.find(handle);
    return found == table->heldByHandles.end() ? nullptr : found->second;
}

void leaveHandle(void const* handle) noexcept
{
    basic::FooRegistry* const table = activeTable();
    if (!table)
        return;
    auto const found = table->heldByHandles.find(handle);
    if (found == table->heldByHandles.end())
        return;
    table->handles.erase({found->second, handle});
    table->heldByHandles.erase(found);
}

} // namespace orbis::factory::detail
